"""The documents in examples/ give exactly these items."""

import re
import unittest

from tool_runs import EXAMPLES, json_of, lines_of, main, output_of

# begin, end, text, colour
EXPECTED = {
    "lighthouse.en": [
        (1000, 3500, "The light has been out since midnight.\nNobody called it in.", "white"),
        (4000, 6250, "Then who is up there?", "white"),
        (7000, 10000, "Station two, do not approach the tower. Over.", "#80FFFF"),
        (12000, 14000, "Too late for that.", "lime"),
    ],
    "lighthouse.de": [
        (1000, 3500, "Das Licht ist seit Mitternacht aus.\nGemeldet hat es niemand.", "white"),
        (4000, 6250, "Und wer ist dann da oben?", "white"),
        (7000, 10000, "Wache zwei, dem Turm nicht nähern. Ende.", "#80FFFF"),
        (12000, 14000, "Dafür ist es zu spät.", "lime"),
    ],
    "market.he": [
        (500, 2500, "בוקר טוב, מה שלומך?", "#FFFFFF"),
        (3000, 5200, "שני קילו תפוזים, בבקשה.\nולימון אחד.", "#FFFFFF"),
    ],
    "forced.en": [
        (1000, 4000, "PLATFORM 9 CLOSED", "#FFCC00FF"),
        (5000, 7500, "Is this the train to Basel?", "cyan"),
        (5000, 7500, "It was. Yesterday.", "white"),
        (8000, 9000, "Wonderful. Two days of this.", "cyan"),
    ],
    "frames.de": [
        (1000, 2480, "Fünfundzwanzig Bilder in der Sekunde.", "#FFFFFFFF"),
        (2520, 4960, "Das letzte Bild zählt mit.", "#FFFFFFFF"),
        (5000, 6000, "Bild 125 bis Bild 150.", "#FFFFFFFF"),
    ],
    "ticks.en": [
        (1500, 2500, "Ten million ticks make a second.", "#FFFFFFFF"),
        (3000, 4234, "This line lasts 1.2345 of them.", "#FFFFFFFF"),
    ],
    "pictures.en": [],  # without its images it has no paragraphs
}

DOCUMENTS = {
    "lighthouse.en": (1000, 14000, 1280, 720, "en"),
    "lighthouse.de": (1000, 14000, 1280, 720, "de"),
    "market.he": (500, 5200, 1920, 1080, "he"),
    "forced.en": (1000, 9000, 1280, 720, "en"),
    "frames.de": (1000, 6000, 720, 576, "de"),
    "ticks.en": (1500, 4234, 1024, 768, "en"),
}


def listed(name, *options):
    return json_of("list", EXAMPLES / f"{name}.ttml", *options)


class Examples(unittest.TestCase):
    def test_every_example_is_expected(self):
        self.assertEqual({path.stem for path in EXAMPLES.glob("*.ttml")}, set(EXPECTED))

    def test_items(self):
        for name, items in EXPECTED.items():
            found = [
                (item["begin"], item["end"], item["text"], item["styling"]["color"]["text"])
                for item in listed(name)["items"]
            ]
            self.assertEqual(found, items, name)

    def test_documents(self):
        for name, facts in DOCUMENTS.items():
            file, *found = listed(name)["document"].values()
            self.assertEqual((file, *found), (str(EXAMPLES / f"{name}.ttml"), *facts))

    def test_styling_comes_from_region_style_and_paragraph(self):
        items = listed("lighthouse.en", "--full")["items"]
        self.assertTrue(items[0]["hasRegion"] and items[0]["hasStyle"])
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

    def test_nested_spans_become_runs(self):
        runs = listed("lighthouse.en", "--full")["items"][2]["runs"]
        fields = ("color", "fontStyle", "fontWeight", "textDecoration")
        self.assertEqual(
            [(r["text"], r["styling"] and [r["styling"][f] for f in fields]) for r in runs],
            [
                ("Station two, ", None),
                ("do not ", [{"text": "yellow", "rgba": [255, 255, 0, 255]}, "italic", "normal", "none"]),
                ("approach", [{"text": "yellow", "rgba": [255, 255, 0, 255]}, "italic", "bold", "underline"]),
                (" the tower", [{"text": "yellow", "rgba": [255, 255, 0, 255]}, "italic", "normal", "none"]),
                (". Over.", None),
            ],
        )

    def test_without_full_a_run_tells_what_it_has_otherwise_than_its_item(self):
        runs = listed("lighthouse.en")["items"][2]["runs"]
        yellow = {"text": "yellow", "rgba": [255, 255, 0, 255]}
        self.assertEqual(
            [run.get("styling") for run in runs],
            [None, {"color": yellow}, {"color": yellow, "fontWeight": "bold", "textDecoration": "underline"},
             {"color": yellow}, None],
        )

    def test_forced_display_and_visibility(self):
        items = listed("forced.en")["items"]
        self.assertEqual([item.get("forcedDisplay") for item in items], [True, None, None, None])
        self.assertEqual(items[3]["runs"][1]["styling"], {"visibility": "hidden"})
        self.assertIn("[hidden] Two days of this.", output_of("list", EXAMPLES / "forced.en.ttml"))

    def test_table(self):
        table = lines_of("list", EXAMPLES / "lighthouse.en.ttml")
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
