"""What render draws, read from the pixels, so that it holds with any font."""

import struct

import png_file
from png_file import Picture
from tool_runs import DONE, EXAMPLES, FAILED, WRONG_USAGE, ToolTest, document, lines_of, main, run, tt


def film(extent):
    """A document with a root extent, a region and a red text in it."""
    return tt('<div><p region="box" begin="1s" end="2s" tts:color="red">XX</p></div>', root=f' tts:extent="{extent}"',
              layout='<region xml:id="box" tts:origin="20px 100px" tts:extent="80px 20px" tts:fontSize="16px"/>')


FILM = film("160px 120px")
REGION = (20, 100, 100, 120)
BLACK, RED = (0, 0, 0, 255), (255, 0, 0, 255)


def picture(*options, time="1s", data=FILM):
    """What is drawn at a time."""
    done = run("render", "-", time, "-o", "-", *options, data=data)
    if done.returncode != DONE or done.stderr:
        raise AssertionError(done.stderr)
    return Picture(done.stdout)


class Pixels(ToolTest):
    def assertInside(self, inner, outer):
        self.assertTrue(inner and inner[0] >= outer[0] and inner[1] >= outer[1]
                        and inner[2] <= outer[2] and inner[3] <= outer[3], f"{inner} in {outer}")

    def test_text_is_drawn_in_its_region_and_at_its_time(self):
        cases = (((), "1s", 1), (("--size", "320x240"), "2000", 2), (("--offset", "-1000"), "0", 1))
        for options, time, scale in cases:
            shown = picture(*options, time=time)
            self.assertEqual(shown.size, (160 * scale, 120 * scale))
            self.assertInside(shown.where(lambda x, y, pixel: pixel == RED), [scale * edge for edge in REGION])
            self.assertIsNone(shown.where(lambda x, y, pixel: pixel[1] or pixel[2] or pixel[3] != 255))
        self.assertEqual(picture(time="2001").colours(), {BLACK})

    def test_the_screen_is_in_the_middle_of_a_picture_of_other_proportions(self):
        left, _, right, _ = picture("--size", "360x120").where(lambda x, y, pixel: pixel == RED)
        self.assertGreaterEqual(left, 100 + REGION[0])
        self.assertLessEqual(right, 100 + REGION[2])

    def test_backgrounds(self):
        for background, colours in (
            ("#204060", {(0x20, 0x40, 0x60, 255)}),
            ("white", {(255, 255, 255, 255)}),
            ("rgba(255,0,0,51)", {(255, 0, 0, 51)}),
            ("transparent", {(0, 0, 0, 0)}),
            ("checkerboard", {(102, 102, 102, 255), (153, 153, 153, 255)}),
        ):
            self.assertEqual(picture("--background", background, time="0").colours(), colours)
        squares = picture("--background", "checkerboard", time="0")
        self.assertNotEqual(squares.at(15, 15), squares.at(16, 15))
        self.assertEqual(squares.at(15, 15), squares.at(16, 16))

    def test_over_a_frame(self):
        def pixel_at(x, y):
            return (x, y, 77, 255 if y else 0)

        frame = self.write("frame.png", png_file.encode(160, 120, pixel_at))
        drawn = picture("--over", frame)
        changed = drawn.where(lambda x, y, pixel: pixel != (pixel_at(x, y) if y else BLACK))
        self.assertInside(changed, REGION)
        self.assertEqual(picture("--over", frame, "--background", "lime").at(5, 0), (0, 255, 0, 255))
        small = self.write("small.png", png_file.encode(80, 60, pixel_at))
        self.assertEqual(picture("--over", small).size, (80, 60))
        self.assertEqual(picture("--over", small, "--size", "320x240").size, (320, 240))

    def test_outline(self):
        is_box = (255, 80, 200, 255).__eq__
        plain, outlined = picture(), picture("--outline")
        self.assertIsNone(plain.where(lambda x, y, pixel: is_box(pixel)))
        below_label = outlined.where(lambda x, y, pixel: is_box(pixel) and y >= REGION[1])
        self.assertEqual(below_label, REGION)
        self.assertGreater(outlined.at(16, 60)[2], 0, "title safe")
        self.assertGreater(outlined.at(8, 20)[2] + outlined.at(8, 21)[2] + outlined.at(8, 27)[2], 0, "action safe")

    def test_pictures_of_a_block(self):
        shown = picture("--images", EXAMPLES / "pictures.en.pngs", "--size", "320x180", time="8s",
                        data=(EXAMPLES / "pictures.en.ttml").read_bytes())
        self.assertInside(shown.where(lambda x, y, pixel: pixel != BLACK), (87, 154, 233, 168))

    def test_what_is_not_drawn_is_said(self):
        done = run("render", "-", "1s", "-o", "-", data=FILM.replace(b"20px 100px", b"900px 100px"))
        reason = b"xttml: the item at 00:00:01.000 is not drawn: its area is empty or outside the root container\n"
        self.assertEqual((done.returncode, done.stderr), (DONE, reason))
        self.assertEqual(Picture(done.stdout).colours(), {BLACK})


class Files(ToolTest):
    def test_a_picture_for_each_time(self):
        shown = lines_of("render", "-", "1.5s", "0", "01:00:00", "1500", "-o", self.folder / "at-%.png", data=FILM)
        names = ["at-00-00-00.000.png", "at-00-00-01.500.png", "at-01-00-00.000.png"]
        self.assertEqual(shown, [f"{self.folder / name}  {count} item{'s' * (count != 1)}"
                                 for name, count in zip(names, (0, 1, 0))])
        self.assertEqual(self.names(), names)
        inks = [RED in Picture((self.folder / name).read_bytes()).colours() for name in names]
        self.assertEqual(inks, [False, True, False])

    def test_what_is_there_is_kept_unless_forced(self):
        kept = self.write("00-00-02.000.png", b"mine")
        render = ("render", "-", "1s", "2s", "-o", self.folder / "%.png")
        self.assert_ends(FAILED, "exists; --force replaces it", *render, data=FILM)
        self.assertEqual((kept.read_bytes(), self.names()), (b"mine", [kept.name]))
        lines_of(*render, "--force", data=FILM)
        self.assertEqual((len(self.names()), Picture(kept.read_bytes()).size), (2, (160, 120)))

    def test_a_percent_sign_of_a_folder_stands_for_itself(self):
        (self.folder / "100%").mkdir()
        lines_of("render", "-", "1s", "-o", self.folder / "100%" / "a.png", data=FILM)
        self.assertEqual([path.name for path in (self.folder / "100%").iterdir()], ["a.png"])


class Sheets(ToolTest):
    def test_every_item_has_its_place(self):
        paragraphs = [(f"{i}s", f"{i}.5s", "XX") for i in range(5)]
        for columns, size in ((None, 40), (1, 40), (2, 40), (3, 40), (9, 40), (2, 60)):
            options = [] if columns is None else ["--columns", columns]
            sheet = Picture(run("render", "-", "--sheet", "-", "--size", f"{size}x30", *options,
                                data=document(*paragraphs)).stdout)
            columns = min(columns or 6, 5)
            self.assertEqual(sheet.size, (8 + columns * (size + 8), 8 + -(-5 // columns) * (30 + 14 + 8)))
            places = [(8 + i % columns * (size + 8), 8 + i // columns * 52) for i in range(5)]
            self.assertEqual([sheet.at(x, y + 29) for x, y in places], [BLACK] * 5)
            self.assertEqual({sheet.at(x - 1, y) for x, y in places}, {(38, 38, 38, 255)})

    def test_an_item_is_drawn_alone_whether_it_comes_on_screen_or_not(self):
        red = FILM.replace(b'begin="1s" end="2s"', b"")
        blue = red.replace(b"</div>", b'<p begin="1s" end="2s" region="box" tts:color="blue">X</p></div>')
        sheet = Picture(run("render", "-", "--sheet", "-", "--size", "160x120", data=blue).stdout)
        left = sheet.where(lambda x, y, pixel: pixel == RED)
        right = sheet.where(lambda x, y, pixel: pixel == (0, 0, 255, 255))
        self.assertLess(left[2], 168)
        self.assertGreater(right[0], 168)

    def test_what_one_sheet_does_not_hold_is_on_several(self):
        data = document(*((f"{i}s", f"{i}.5s", "x") for i in range(700)))
        alone = ("render", "-", "--sheet", self.folder / "a.png", "--columns", "2")
        self.assert_ends(FAILED, "its items fill 5 sheets; a % in the name", *alone, data=data)
        self.assertEqual(self.names(), [])
        several = ("--sheet", self.folder / "%.png", "--columns", "2", "--size", "20x80")
        shown = lines_of("render", "-", *several, data=data)
        spans = ("1 to 320", "321 to 640", "641 to 700")
        self.assertEqual(shown, [f"{self.folder / f'{i}.png'}  items {span}" for i, span in enumerate(spans, 1)])
        heights = [Picture((self.folder / name).read_bytes()).height for name in self.names()]
        self.assertEqual(heights, [8 + rows * 102 for rows in (160, 160, 30)])


class Failures(ToolTest):
    def test_wrong_usage(self):
        out = ("-o", self.folder / "a.png")
        for arguments in (
            ("1s",), out, ("1s", "2s", *out), ("x", *out), ("1s", "--sheet", "a"), ("--sheet", "a", *out),
            ("1s", *out, "--columns", "2"),
            *(("--sheet", "a", "--columns", count) for count in ("0", "-1", "16385", "x")),
            *(("1s", *out, "--size", size) for size in
              ("0x0", "-1", "-1x5", "99999x99999", "16384x16384", "16385x1", "10", "10x", "x", "", "1x1x1", "1e3x5")),
            *(("1s", *out, "--background", colour) for colour in ("whit", "#12345", "", "rgb(1,2)", "#GGGGGG")),
        ):
            with self.subTest(arguments):
                self.assertEqual(run("render", "-", *arguments, data=FILM).returncode, WRONG_USAGE)
        self.assertEqual(self.names(), [])

    def test_frames_and_screens_that_are_of_no_use(self):
        good = png_file.encode(2, 2, lambda x, y: RED)
        huge = good[:16] + struct.pack(">II", 65535, 65535) + good[24:]
        frames = {"none.png": None, "text.png": b"text", "empty.png": b"", "cut.png": good[:50], "huge.png": huge}
        reasons = ("No such file", "not a PNG file", "no image data", "a damaged PNG file",
                   "a picture of 65535 x 65535 pixels is too large")
        for name, frame in frames.items():
            if frame is not None:
                self.write(name, frame)
        cases = [(FILM, ("--over", self.folder / name), f"{name}: {why}") for name, why in zip(frames, reasons)]
        cases += [(film(extent), (), "is too large for a picture; --size")
                  for extent in ("99999px 99999px", "4294967295px 1px", "1px 16385px")]
        there = self.names()
        for data, options, reason in cases:
            self.assert_ends(FAILED, reason, "render", "-", "1s", "-o", self.folder / "a.png", *options, data=data)
        self.assertEqual(self.names(), there)
        for data, options, reason in (
            (document(), (), "has no items"),
            (FILM, ("--size", "16384x10"), "6 columns of 16384x10 px are too large for a picture"),
            (FILM, ("--size", "8192x8192"), "6 columns of 8192x8192 px are too large for a picture"),
        ):
            self.assert_ends(FAILED, reason, "render", "-", "--sheet", "-", *options, data=data)
        self.assertEqual(picture(data=film("0px 0px")).size, (1024, 768))
        far = film("99999px 99999px")
        self.assertEqual(picture("--size", "160x120", time="0", data=far).size, (160, 120))


if __name__ == "__main__":
    main()
