"""What list shows of two examples."""

import re
import unittest

from tool_runs import EXAMPLES, json_of, lines_of, main, output_of, tt

LIGHTHOUSE = EXAMPLES / "lighthouse.en.ttml"
YELLOW = {"text": "yellow", "rgba": [255, 255, 0, 255]}


class Examples(unittest.TestCase):
    def test_document_and_items(self):
        listed = json_of("list", LIGHTHOUSE)
        self.assertEqual(list(listed["document"].values()), [str(LIGHTHOUSE), 1000, 14000, 1280, 720, "en"])
        self.assertEqual(
            [(item["begin"], item["end"], item["text"], item["styling"]["color"]["text"]) for item in listed["items"]],
            [
                (1000, 3500, "The light has been out since midnight.\nNobody called it in.", "white"),
                (4000, 6250, "Then who is up there?", "white"),
                (7000, 10000, "Station two, do not approach the tower. Over.", "#80FFFF"),
                (12000, 14000, "Too late for that.", "lime"),
            ],
        )

    def test_styling_comes_from_region_style_and_paragraph(self):
        items = json_of("list", LIGHTHOUSE, "--full")["items"]
        self.assertEqual([items[0][name] for name in ("id", "region", "style")], [None, "bottom", "speech"])
        expected = {
            "backgroundColor": {"text": "rgba(0,0,0,160)", "rgba": [0, 0, 0, 160]},
            "color": {"text": "white", "rgba": [255, 255, 255, 255]},
            "displayAlign": "after",
            "extentWidth": 1024,
            "extentHeight": 108,
            "fontSize": 36,
            "fontStyle": "normal",
            "fontWeight": "normal",
            "lineHeight": 45,
            "originX": 128,
            "originY": 576,
            "textAlign": "center",
            "textDecoration": "none",
            "visibility": "visible",
        }
        styling = items[0]["styling"]
        self.assertEqual({key: styling[key] for key in expected}, expected)
        self.assertEqual(items[3]["styling"]["color"], {"text": "lime", "rgba": [0, 255, 0, 255]})
        self.assertEqual([name for name, given in styling["set"].items() if given],
                         ["color", "fontSize", "lineHeight", "textAlign"])

    def test_which_of_region_and_style_there_is(self):
        data = tt('<div><p region="r"/><p style="s"/></div>', '<style xml:id="s"/>', '<region xml:id="r"/>')
        items = json_of("list", "-", "--full", data=data)["items"]
        self.assertEqual([(item["hasRegion"], item["hasStyle"]) for item in items], [(True, False), (False, True)])

    def test_nested_spans_become_runs(self):
        runs = json_of("list", LIGHTHOUSE, "--full")["items"][2]["runs"]
        fields = ("color", "fontStyle", "fontWeight", "textDecoration")
        self.assertEqual(
            [(r["text"], r["styling"] and [r["styling"][f] for f in fields]) for r in runs],
            [
                ("Station two, ", None),
                ("do not ", [YELLOW, "italic", "normal", "none"]),
                ("approach", [YELLOW, "italic", "bold", "underline"]),
                (" the tower", [YELLOW, "italic", "normal", "none"]),
                (". Over.", None),
            ],
        )

    def test_without_full_a_run_tells_what_it_has_otherwise_than_its_item(self):
        runs = json_of("list", LIGHTHOUSE)["items"][2]["runs"]
        approach = {"color": YELLOW, "fontWeight": "bold", "textDecoration": "underline"}
        self.assertEqual([run.get("styling") for run in runs],
                         [None, {"color": YELLOW}, approach, {"color": YELLOW}, None])

    def test_forced_display_and_visibility(self):
        items = json_of("list", EXAMPLES / "forced.en.ttml")["items"]
        self.assertEqual([item.get("forcedDisplay") for item in items], [True, None, None, None])
        self.assertEqual(items[3]["runs"][1]["styling"], {"visibility": "hidden"})
        self.assertIn("[hidden] Two days of this.", output_of("list", EXAMPLES / "forced.en.ttml"))

    def test_table(self):
        table = lines_of("list", LIGHTHOUSE)
        self.assertEqual(table[0], "00:00:01.000 to 00:00:14.000, root container 1280x720, language en, 4 items")
        rows = [re.split(r" {2,}", line.strip()) for line in table[1:]]
        self.assertEqual(
            rows[:2],
            [
                ["#", "BEGIN", "END", "BOX", "COLOUR", "BACKGROUND", "FONT/LINE", "ALIGN", "REGION", "STYLE",
                 "TEXT"],
                ["1", "00:00:01.000", "00:00:03.500", "1024x108+128+576", "white", "rgba(0,0,0,160)", "36/45",
                 "center after", "bottom", "speech", "The light has been out since midnight.⏎Nobody called it in."],
            ],
        )
        self.assertIn(["run 3", "yellow", "transparent", "32/- bold italic underline", "approach"], rows)
        self.assertEqual(len({line.index("tower") - len("Station two, do not approach the ")
                              for line in table if line.startswith("3 ")} | {table[1].index("TEXT")}), 1)


if __name__ == "__main__":
    main()
