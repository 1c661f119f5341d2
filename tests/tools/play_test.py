"""What `at` and `play` show over time."""

import json
import time
import unittest

from tool_runs import DONE, EXAMPLES, document, json_of, lines_of, main, run

FORCED = EXAMPLES / "forced.en.ttml"


def changes(data, *options):
    """The lines of a play, times in ms: [(time, sign, text)]."""
    result = []
    for line in lines_of("play", "-", *options, data=data):
        stamp, sign, text = line.split("  ")
        hours, minutes, seconds = stamp.split(":")
        result.append((round((int(hours) * 60 + int(minutes)) * 60000 + float(seconds) * 1000), sign, text))
    return result


class Play(unittest.TestCase):
    def test_lines(self):
        self.assertEqual(
            lines_of("play", FORCED),
            [
                "00:00:01.000  +  [forced] PLATFORM 9 CLOSED",
                "00:00:04.001  -  [forced] PLATFORM 9 CLOSED",
                "00:00:05.000  +  Is this the train to Basel?",
                "00:00:05.000  +  It was. Yesterday.",
                "00:00:07.501  -  Is this the train to Basel?",
                "00:00:07.501  -  It was. Yesterday.",
                "00:00:08.000  +  Wonderful.",
                "00:00:09.001  -  Wonderful.",
            ],
        )

    # Paragraphs; when each is on screen; what a player sees that asks for the first item at each millisecond, where
    # that is something else.
    DOCUMENTS = {
        "touching": (
            [("0s", "1s", "a"), ("1s", "2s", "b")],
            [("a", 0, 1000), ("b", 1000, 2000)],
            [("a", 0, 1000), ("b", 1001, 2000)],
        ),
        "gap": ([("1s", "2s", "a"), ("1h", "3601s", "b")], [("a", 1000, 2000), ("b", 3600000, 3601000)]),
        "inside a longer one": (
            [("1s", "5s", "a"), ("2s", "3s", "b")], [("a", 1000, 5000), ("b", 2000, 3000)], [("a", 1000, 5000)]
        ),
        "outlasting": (
            [("1s", "3s", "a"), ("2s", "5s", "b")],
            [("a", 1000, 3000), ("b", 2000, 5000)],
            [("a", 1000, 3000), ("b", 3001, 5000)],
        ),
        "before a longer one": (
            [("2s", "3s", "b"), ("1s", "5s", "a")],
            [("a", 1000, 5000), ("b", 2000, 3000)],
            [("a", 1000, 1999), ("b", 2000, 3000), ("a", 3001, 5000)],
        ),
        "out of order": ([("5001ms", "6s", "b"), ("333ms", "499ms", "a")], [("a", 333, 499), ("b", 5001, 6000)]),
        "no end": ([("1s", None, "x"), ("2s", "3s", "a")], [("a", 2000, 3000)]),
        "no begin": ([(None, "2s", "a"), ("3s", "4s", "b")], [("a", 0, 2000), ("b", 3000, 4000)]),
        "no times": ([(None, None, "x"), ("1s", "2s", "a"), ("1h", "3610s", "b")],
                     [("a", 1000, 2000), ("b", 3600000, 3610000)]),
        "end before begin": ([("2s", "1s", "x"), ("3s", "4s", "a")], [("a", 3000, 4000)]),
        "latest time": ([("1s", "596:31:23.646", "a")], [("a", 1000, 2147483646)]),
    }

    def test_shows_what_is_on_screen(self):
        for name, (paragraphs, *answers) in self.DOCUMENTS.items():
            for options, spans in (([], answers[0]), (["--first"], answers[-1]), (["--step", "1"], answers[0])):
                with self.subTest(name, options=options):
                    expected = [(begin, "+", text) for text, begin, _ in spans]
                    expected += [(end + 1, "-", text) for text, _, end in spans]
                    expected.sort(key=lambda change: (change[0], change[1] == "+"))
                    self.assertEqual(changes(document(*paragraphs), *options), expected)

    def test_an_endless_silence_takes_no_time(self):
        started = time.monotonic()
        lines = lines_of("play", "-", "--step", "1", data=document((None, None, "x"), ("5s", None, "y")))
        self.assertEqual(lines, ["nothing comes on screen"])
        self.assertLess(time.monotonic() - started, 10)

    def test_many_at_once(self):
        data = document(*(("1s", "2s", str(i)) for i in range(50)))
        self.assertEqual([text for _, _, text in changes(data)], [str(i) for i in range(50)] * 2)
        self.assertEqual(len(changes(data, "--first")), 8)
        self.assertEqual(len(lines_of("at", "-", "1s", data=data)), 51)

    def test_json_is_an_object_a_line(self):
        lines = [json.loads(line) for line in lines_of("play", FORCED, "--json")]
        self.assertEqual(
            [(line["time"], line["change"], line["item"]["text"][:8]) for line in lines[:3]],
            [(1000, "comes", "PLATFORM"), (4001, "goes", "PLATFORM"), (5000, "comes", "Is this ")],
        )
        self.assertEqual(lines[0]["item"], json_of("list", FORCED)["items"][0])

    def test_from_and_to(self):
        data = document(("1s", "2s", "a"), ("3s", "4s", "b"))
        self.assertEqual(
            changes(data, "--from", "1.5s", "--to", "3s"), [(1500, "+", "a"), (2001, "-", "a"), (3000, "+", "b")]
        )
        self.assertEqual(lines_of("play", "-", "--from", "5s", data=data), ["nothing comes on screen"])
        self.assertEqual(changes(data, "--from", "2000", "--to", "2000"), [(2000, "+", "a")])

    def test_frames_are_those_of_the_document(self):
        frames = EXAMPLES / "frames.de.ttml"
        self.assertEqual(lines_of("at", frames, "00:00:01:12")[0], "00:00:01.480")
        self.assertEqual(lines_of("play", frames, "--from", "00:00:05:00", "--to", "00:00:05:24"),
                         ["00:00:05.000  +  Bild 125 bis Bild 150."])
        beyond = run("at", frames, "00:00:01:25")
        self.assertEqual(beyond.returncode, 1)
        self.assertIn(b"has no frame 25 of a second: there are 25", beyond.stderr)
        self.assertEqual(lines_of("at", "-", "00:00:00:15", data=document())[0], "00:00:00.500")

    def test_hidden_text_is_not_seen(self):
        data = document(("1s", "2s", '<span tts:visibility="hidden">a<br/>b</span>'))
        self.assertEqual(changes(data)[0], (1000, "+", "[nothing visible]"))

    def test_realtime_takes_the_time_it_shows(self):
        data = document(("10s", "10.2s", "a"), ("10.4s", "10.6s", "b"))
        started = time.monotonic()
        self.assertEqual(len(changes(data, "--realtime")), 4)
        self.assertGreaterEqual(time.monotonic() - started, 0.6)


class At(unittest.TestCase):
    def test_lines(self):
        self.assertEqual(
            lines_of("at", FORCED, "4000", "4.5s", "00:00:06", "1h"),
            [
                "00:00:04.000",
                "  00:00:01.000 to 00:00:04.000  [forced] PLATFORM 9 CLOSED",
                "00:00:04.500",
                "  nothing on screen, next is 00:00:05.000 to 00:00:07.500  Is this the train to Basel?",
                "00:00:06.000",
                "  00:00:05.000 to 00:00:07.500  Is this the train to Basel?",
                "  00:00:05.000 to 00:00:07.500  It was. Yesterday.",
                "01:00:00.000",
                "  nothing on screen, nothing to come",
            ],
        )

    def test_combine_merges_once_and_nothing_in_a_gap(self):
        merged = "  00:00:05.000 to 00:00:07.500  Is this the train to Basel?⏎It was. Yesterday."
        lines = lines_of("at", FORCED, "4500", "6000", "6000", "1500", "--combine")
        self.assertEqual([lines[3], lines[5]], [merged, merged])
        self.assertIn("nothing on screen", lines[1])
        self.assertIn("PLATFORM 9 CLOSED", lines[7])

    def test_json(self):
        answers = json_of("at", FORCED, "500", "6s")
        self.assertEqual([answer["time"] for answer in answers], [500, 6000])
        self.assertEqual([len(answer["items"]) for answer in answers], [0, 2])
        self.assertEqual(answers[0]["next"]["text"], "PLATFORM 9 CLOSED")
        self.assertEqual([answer["merged"] for answer in answers], [None, None])
        combined = json_of("at", FORCED, "6s", "--combine", "--full")[0]
        self.assertEqual(combined["merged"], "Is this the train to Basel?\nIt was. Yesterday.")
        self.assertTrue(combined["items"][0]["combined"])

    def test_the_next_is_the_next_in_time(self):
        data = document((None, None, "x"), ("9s", "10s", "b"), ("5s", "6s", "a"))
        for options, text in (([], "a"), (["--first"], "x")):
            self.assertEqual(json_of("at", "-", "1s", *options, data=data)[0]["next"]["text"], text)

    def test_first_hides_what_overlaps(self):
        data = document(("1s", "9s", "a"), ("2s", "3s", "b"))
        for options, count in (([], 2), (["--first"], 1), (["--combine"], 1)):
            self.assertEqual(len(json_of("at", "-", "2s", *options, data=data)[0]["items"]), count)

    def test_a_time_beyond_all_others_is_a_time(self):
        self.assertEqual(run("at", FORCED, "2147483647").returncode, DONE)
        self.assertEqual(run("at", FORCED, "2147483648").returncode, 2)


if __name__ == "__main__":
    main()
