"""Image subtitles: what the commands show of them, and the pictures that extract writes."""

from tool_runs import DONE, EXAMPLES, FAILED, WRONG_USAGE, ToolTest, json_of, lines_of, main, run, tt

DOCUMENT = EXAMPLES / "pictures.en.ttml"
BLOCK = EXAMPLES / "pictures.en.pngs"
SIGNATURE = b"\x89PNG"
PICTURES = [SIGNATURE + rest for rest in BLOCK.read_bytes().split(SIGNATURE)[1:]]


def division(begin, index, names=""):
    """A division with the image of an index."""
    image = f"urn:dece:container:subtitleimageindex:{index}.png"
    return f'<div {names} begin="{begin}" end="9s" smpte:backgroundImage="{image}"/>'


class Images(ToolTest):
    def test_list_tells_place_and_picture(self):
        items = json_of("list", DOCUMENT, "--images", BLOCK)["items"]
        offset = 0
        for item, picture in zip(items, PICTURES, strict=True):
            width, height = item["styling"]["extentWidth"], item["styling"]["extentHeight"]
            self.assertEqual(item["image"], {"bytes": len(picture), "offset": offset, "width": width, "height": height})
            offset += len(picture)
        self.assertEqual([item.get("forcedDisplay") for item in items], [None, None, True, None])

    def test_several_files_make_a_block(self):
        images = []
        for i, picture in enumerate(PICTURES):
            images += ["--images", self.write(f"{i}.png", picture)]
        self.assertEqual(lines_of("list", *images, DOCUMENT), lines_of("list", DOCUMENT, "--images", BLOCK))

    def test_items_carry_the_names_of_their_divisions(self):
        *named, inner = (division(f"{i}s", image, f'xml:id="{i}" region="r{i}"') for i, image in enumerate((1, 31, 2, 3)))
        document = self.write("d.ttml", tt("".join(named) + f"<div>{inner}</div>"))
        items = json_of("list", document, "--images", BLOCK)["items"]
        self.assertEqual([(item["id"], item["region"]) for item in items], [("0", "r0"), ("2", "r2"), ("3", "r3")])

    def test_at_and_play_show_pictures(self):
        forced = f"[forced] 579x56+350+616  image 579x56 px, {len(PICTURES[2])} bytes at "
        at = lines_of("at", DOCUMENT, "8s", "--images", BLOCK)
        self.assertIn(f"  00:00:07.000 to 00:00:10.000  {forced}", at[1])
        play = lines_of("play", DOCUMENT, "--images", BLOCK)
        self.assertEqual(len(play), 2 * len(PICTURES))
        self.assertTrue(play[4].startswith(f"00:00:07.000  +  {forced}"))

    def test_extract_writes_the_pictures(self):
        target = self.folder / "new" / "folder"
        names = ["00-00-01.000", "00-00-04.000", "00-00-07.000", "00-00-12.000"]
        extract = ("extract", DOCUMENT, "--images", BLOCK, "--to", target)
        self.assertEqual(len(lines_of(*extract)), len(names))
        self.assertEqual([(target / f"{name}.png").read_bytes() for name in names], PICTURES)

        first = target / f"{names[0]}.png"
        first.write_bytes(b"mine")
        (target / f"{names[1]}.png").unlink()
        refused = run(*extract)
        self.assertEqual((refused.returncode, first.read_bytes()), (FAILED, b"mine"))
        self.assertFalse((target / f"{names[1]}.png").exists(), "nothing is written when something is refused")
        lines_of(*extract, "--force")
        self.assertEqual(first.read_bytes(), PICTURES[0])

    def test_extract_names_equal_times_apart_and_reports_missing_data(self):
        document = self.write("d.ttml", tt("".join(map(division, ("1s", "1s", "2s"), (1, 2, 5)))))
        done = run("extract", document, "--images", BLOCK, "--to", self.folder / "out", "--offset", "500", "--quiet")
        self.assertEqual(done.returncode, DONE)
        self.assertEqual(done.stderr, b"xttml: no image data for the item at 00:00:02.500\n")
        self.assertEqual(sorted(path.name for path in (self.folder / "out").iterdir()),
                         ["00-00-01.500-2.png", "00-00-01.500.png"])

    def test_a_block_of_no_pictures_is_shown_as_such(self):
        document = self.write("d.ttml", tt(division("1s", 1) + division("2s", 2)))
        block = self.write("block", b"no picture")
        items = json_of("list", document, "--images", block)["items"]
        self.assertEqual(items[0]["image"], {"bytes": 10, "offset": 0, "width": None, "height": None})
        self.assertEqual(items[1]["image"], {"bytes": 0, "offset": None, "width": None, "height": None})

    def test_failures(self):
        empty = self.write("empty", b"")
        text = self.write("text", b"\x89PNG, not quite")
        out = self.folder / "out"
        untimed = self.write("u.ttml", tt(division("1s", 1).replace(' end="9s"', "")))
        for code, reason, *arguments in (
            (FAILED, "none: No such file", "list", DOCUMENT, "--images", self.folder / "none"),
            (FAILED, "empty: no image data", "list", DOCUMENT, "--images", empty),
            (FAILED, "Cannot read value of non-existent attribute.", "list", untimed, "--images", BLOCK),
            (WRONG_USAGE, "--images", "extract", DOCUMENT, "--to", self.folder),
            (WRONG_USAGE, "--to", "extract", DOCUMENT, "--images", BLOCK),
            (FAILED, "empty", "extract", DOCUMENT, "--images", BLOCK, "--to", empty),
            (FAILED, "shows no picture", "extract", EXAMPLES / "ticks.en.ttml", "--images", BLOCK, "--to", out),
            (FAILED, "at 00:00:01.000 is no PNG file", "extract", DOCUMENT, "--images", text, "--to", out),
        ):
            self.assert_ends(code, reason, *arguments)
            self.assertFalse(out.exists())


if __name__ == "__main__":
    main()
