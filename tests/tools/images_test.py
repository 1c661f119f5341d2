"""Image subtitles: what the commands show of them, and the pictures that extract writes."""

import pathlib
import tempfile
import unittest

from tool_runs import DONE, EXAMPLES, FAILED, WRONG_USAGE, json_of, lines_of, main, run

DOCUMENT = EXAMPLES / "pictures.en.ttml"
BLOCK = EXAMPLES / "pictures.en.pngs"
SIGNATURE = b"\x89PNG"

IMAGES = (
    '<tt xmlns="http://www.w3.org/ns/ttml" xmlns:smpte="http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt">'
    "<body>%s</body></tt>"
)


def division(begin, index):
    """A division with the image of an index."""
    return (
        f'<div begin="{begin}" end="9s" smpte:backgroundImage="urn:dece:container:subtitleimageindex:{index}.png"/>'
    )


class Images(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = pathlib.Path(self.folder.name)
        block = BLOCK.read_bytes()
        self.pictures = [SIGNATURE + rest for rest in block.split(SIGNATURE)[1:]]

    def write(self, name, content):
        path = self.path / name
        path.write_bytes(content)
        return path

    def test_list_tells_place_and_picture(self):
        items = json_of("list", DOCUMENT, "--images", BLOCK)["items"]
        offset = 0
        for item, picture in zip(items, self.pictures, strict=True):
            styling = item["styling"]
            self.assertEqual(
                item["image"],
                {
                    "bytes": len(picture),
                    "offset": offset,
                    "width": styling["extentWidth"],
                    "height": styling["extentHeight"],
                },
            )
            offset += len(picture)
        self.assertEqual([item.get("forcedDisplay") for item in items], [None, None, True, None])

    def test_several_files_make_a_block(self):
        images = []
        for i, picture in enumerate(self.pictures):
            images += ["--images", self.write(f"{i}.png", picture)]
        self.assertEqual(lines_of("list", *images, DOCUMENT), lines_of("list", DOCUMENT, "--images", BLOCK))

    def test_items_carry_the_names_of_their_divisions(self):
        divisions = [division("1s", 1), division("2s", 31), division("3s", 2), f"<div>{division('4s', 3)}</div>"]
        names = [f'<div xml:id="{i}" region="r{i}" ' for i in range(4)]
        divisions = [d[::-1].replace("<div "[::-1], name[::-1], 1)[::-1] for d, name in zip(divisions, names)]
        document = self.write("d.ttml", (IMAGES % "".join(divisions)).encode())
        items = json_of("list", document, "--images", BLOCK)["items"]
        self.assertEqual([(item["id"], item["region"]) for item in items], [("0", "r0"), ("2", "r2"), ("3", "r3")])

    def test_at_and_play_show_pictures(self):
        forced = f"[forced] 579x56+350+616  image 579x56 px, {len(self.pictures[2])} bytes at "
        at = lines_of("at", DOCUMENT, "8s", "--images", BLOCK)
        self.assertIn(f"  00:00:07.000 to 00:00:10.000  {forced}", at[1])
        play = lines_of("play", DOCUMENT, "--images", BLOCK)
        self.assertEqual(len(play), 2 * len(self.pictures))
        self.assertTrue(play[4].startswith(f"00:00:07.000  +  {forced}"))

    def test_extract_writes_the_pictures(self):
        target = self.path / "new" / "folder"
        names = ["00-00-01.000", "00-00-04.000", "00-00-07.000", "00-00-12.000"]
        extract = ("extract", DOCUMENT, "--images", BLOCK, "--to", target)
        self.assertEqual(len(lines_of(*extract)), len(names))
        self.assertEqual([(target / f"{name}.png").read_bytes() for name in names], self.pictures)

        first = target / f"{names[0]}.png"
        first.write_bytes(b"mine")
        (target / f"{names[1]}.png").unlink()
        refused = run(*extract)
        self.assertEqual((refused.returncode, first.read_bytes()), (FAILED, b"mine"))
        self.assertFalse((target / f"{names[1]}.png").exists(), "nothing is written when something is refused")
        lines_of(*extract, "--force")
        self.assertEqual(first.read_bytes(), self.pictures[0])

    def test_extract_names_equal_times_apart_and_reports_missing_data(self):
        document = self.write("d.ttml", (IMAGES % "".join(map(division, ("1s", "1s", "2s"), (1, 2, 5)))).encode())
        done = run("extract", document, "--images", BLOCK, "--to", self.path / "out", "--offset", "500", "--quiet")
        self.assertEqual(done.returncode, DONE)
        self.assertEqual(done.stderr, b"xttml: no image data for the item at 00:00:02.500\n")
        names = sorted(path.name for path in (self.path / "out").iterdir())
        self.assertEqual(names, ["00-00-01.500-2.png", "00-00-01.500.png"])

    def test_a_block_of_no_pictures_is_shown_as_such(self):
        document = self.write("d.ttml", (IMAGES % (division("1s", 1) + division("2s", 2))).encode())
        block = self.write("block", b"no picture")
        items = json_of("list", document, "--images", block)["items"]
        self.assertEqual(items[0]["image"], {"bytes": 10, "offset": 0, "width": None, "height": None})
        self.assertEqual(items[1]["image"], {"bytes": 0, "offset": None, "width": None, "height": None})

    def test_failures(self):
        empty = self.write("empty", b"")
        text = self.write("text", b"\x89PNG, not quite")
        out = self.path / "out"
        untimed = self.write("u.ttml", (IMAGES % division("1s", 1).replace(' end="9s"', "")).encode())
        for arguments, code, reason in (
            (("list", DOCUMENT, "--images", self.path / "none"), FAILED, b"none: No such file"),
            (("list", DOCUMENT, "--images", empty), FAILED, b"empty: no image data"),
            (("list", untimed, "--images", BLOCK), FAILED, b"Cannot read value of non-existent attribute."),
            (("extract", DOCUMENT, "--to", self.path), WRONG_USAGE, b"--images"),
            (("extract", DOCUMENT, "--images", BLOCK), WRONG_USAGE, b"--to"),
            (("extract", DOCUMENT, "--images", BLOCK, "--to", empty), FAILED, b"empty"),
            (("extract", EXAMPLES / "ticks.en.ttml", "--images", BLOCK, "--to", out), FAILED, b"shows no picture"),
            (("extract", DOCUMENT, "--images", text, "--to", out), FAILED, b"at 00:00:01.000 is no PNG file"),
        ):
            done = run(*arguments)
            self.assertEqual(done.returncode, code, arguments)
            self.assertIn(reason, done.stderr)
            self.assertEqual(done.stdout, b"")
            self.assertFalse(out.exists())


if __name__ == "__main__":
    main()
