"""The chart that timeline draws."""

import unittest
import xml.etree.ElementTree as ElementTree

from png_file import Picture
from tool_runs import EXAMPLES, FAILED, WRONG_USAGE, ToolTest, document, main, output_of

SVG = "{http://www.w3.org/2000/svg}"


class Bar:
    """A bar of the chart."""

    def __init__(self, element):
        self.number, self.title = element.find(f"{SVG}title").text.split("  ", 1)
        self.x, self.y, self.width = (float(element.get(name)) for name in ("x", "y", "width"))
        self.kind = element.get("class")


def bars_of(chart):
    return [Bar(shape) for shape in chart if shape.find(f"{SVG}title") is not None]


def read(*arguments, data):
    """The bars, the words and the height of a chart."""
    chart = ElementTree.fromstring(output_of("timeline", "-", "-o", "-", *arguments, data=data))
    return bars_of(chart), [text.text for text in chart.iter(f"{SVG}text")], int(chart.get("height"))


class Timeline(unittest.TestCase):
    def test_bars_stand_at_their_times_and_beside_each_other(self):
        data = document(("0s", "2.999s", "a"), ("5s", "5.999s", "b"), ("2s", "3.999s", "c"), ("3s", "5.499s", "d"))
        bars, words, _ = read(data=data)
        left, second = 90, 120
        self.assertEqual([(bar.number, (bar.x - left) / second, bar.width / second) for bar in bars],
                         [("1", 0, 3), ("3", 2, 2), ("4", 3, 2.5), ("2", 5, 1)])
        lanes = sorted({bar.y for bar in bars})
        self.assertEqual([lanes.index(bar.y) for bar in bars], [0, 1, 0, 1])
        self.assertIn("4 items, 00:00:00.000 to 00:00:05.999", words)
        self.assertEqual(bars[0].title, "00:00:00.000 to 00:00:02.999  a")

    def test_what_is_forced_or_not_seen_is_marked(self):
        hidden = "<span tts:visibility='hidden'>x</span>"
        data = document(("1s", "2s", "x"), ("3s", "4s", hidden), ("5s", "6s", "x"), ("7s", "8s", hidden))
        for time in (b"5s", b"7s"):
            data = data.replace(b'begin="%s"' % time, b'begin="%s" cff:forcedDisplayMode="true"' % time)
        self.assertEqual([bar.kind for bar in read(data=data)[0]],
                         ["item", "item unseen", "item forced", "item unseen forced"])

    def test_every_item_has_a_bar_in_each_row_that_it_is_in(self):
        data = document(*((f"{i}s", f"{i + 1}.999s", "x") for i in range(0, 7000, 7)))
        bars, _, height = read(data=data)
        self.assertEqual({int(bar.number) for bar in bars}, set(range(1, 1001)))
        self.assertEqual(len({bar.y for bar in bars}), 59, "rows of two minutes")
        last_second = document(("59s", "60.999s", "x"), ("100s", "101s", "x"))
        self.assertEqual([bar.number for bar in read(data=last_second)[0]], ["1", "1", "2"])
        self.assertLess(height, 16384)

    def test_more_at_once_than_there_are_lanes(self):
        bars, words, height = read(data=document(*(("0s", "59m", "x") for _ in range(2000))))
        self.assertEqual({int(bar.number) for bar in bars}, set(range(1, 2001)))
        self.assertIn("Lane 16 holds all that is on screen beside 15 others.", words)
        self.assertLess(len(bars), 2000 + 60 * 16)
        self.assertLess(height, 16384)

    def test_times_that_are_not_known(self):
        data = document((None, "2s", "a"), ("1s", None, "b"), ("4s", "3s", "c"), (None, None, "d"), ("-", "1s", "e"))
        bars, words, _ = read("--offset", "1500", data=data)
        self.assertEqual([bar.title for bar in bars], ["- to 00:00:03.500  a", "- to 00:00:02.500  e"])
        never = "Without an end, or with one before the begin, and so never on screen: 3 items (2, 3, 4)"
        self.assertIn(never, words)
        self.assertEqual(read(data=document((None, None, "d")))[0], [])
        for begin, end in (("0s", "0s"), ("596:31:23.646", "596:31:23.646"), ("0s", "596:31:23.646")):
            self.assertLess(read("--offset", "2147483647", data=document((begin, end, "x")))[2], 2000)

    def test_texts_are_escaped(self):
        text = "&lt;/title>&amp;\"'&#x9;&#x9B;\U0001F600\u05D0"
        bars, words, _ = read(data=document(("0s", "9s", text), ("0s", "9s", "long " * 1000)))
        self.assertTrue(bars[0].title.endswith("  </title>&\"' \uFFFD\U0001F600\u05D0"))
        self.assertIn("</title>&\"' \uFFFD\U0001F600\u05D0", words)
        self.assertLess(max(map(len, [bars[1].title, *words])), 500)


class Files(ToolTest):
    def test_both_kinds(self):
        svg, png = self.folder / "a.svg", self.folder / "a.png"
        images = ("--images", EXAMPLES / "pictures.en.pngs")
        for file in (svg, png):
            timeline = ("timeline", EXAMPLES / "pictures.en.ttml", *images, "-o", file)
            output_of(*timeline)
            self.assert_ends(FAILED, "exists; --force replaces it", *timeline)
        chart = ElementTree.fromstring(svg.read_text())
        drawn = Picture(png.read_bytes())
        self.assertEqual(drawn.size, (int(chart.get("width")), int(chart.get("height"))))
        for bar in bars_of(chart):
            inside = drawn.at(int(bar.x + bar.width) - 3, int(bar.y) + 3)
            self.assertEqual(inside, (242, 142, 43, 255) if bar.kind == "item forced" else (62, 108, 156, 255))

    def test_failures(self):
        forced = EXAMPLES / "forced.en.ttml"
        for arguments in (("-o", "a.txt"), ("-o", "a"), ()):
            self.assert_ends(WRONG_USAGE, "", "timeline", forced, *arguments)
        self.assert_ends(FAILED, "No such file", "timeline", forced, "-o", "/no/a.svg")
        self.assert_ends(FAILED, "has no items", "timeline", "-", "-o", "-", data=document())


if __name__ == "__main__":
    main()
