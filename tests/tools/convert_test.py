"""What convert makes of items in each format."""

import unittest

from tool_runs import DONE, EXAMPLES, FAILED, WRONG_USAGE, ToolTest, document, main, output_of, run, tt

FORMATS = ("srt", "vtt", "ass", "txt")
ROOT_EXTENT = ' tts:extent="1280px 720px"'
JOINER = "\u2060"

# A paragraph's content and its text in each format.
TEXTS = (
    ("a", "a", "a", "a", "a"),
    ("a<span tts:fontWeight='bold'>b</span>c", "a<b>b</b>c", "a<b>b</b>c", r"a{\rStyle2}b{\r}c", "abc"),
    ("<span tts:fontStyle='italic' tts:textDecoration='underline'>a</span>", "<i><u>a</u></i>", "<i><u>a</u></i>",
     r"{\rStyle2}a{\r}", "a"),
    ("<span tts:textDecoration='lineThrough'>a</span>", "<s>a</s>", "a", r"{\rStyle2}a{\r}", "a"),
    ("<span tts:color='#ff000080'>a</span>", '<font color="#ff0000">a</font>', "<c.color-ff000080>a</c>",
     r"{\rStyle2}a{\r}", "a"),
    ("<span tts:backgroundColor='blue'>a</span>", "a", "<c.background-0000ff>a</c>", r"{\rStyle2}a{\r}", "a"),
    ("<span tts:backgroundColor='none of these'>a</span>", "a", "a", "a", "a"),
    ("<span tts:color='red'>a<br/>b</span>", '<font color="#ff0000">a</font>\n<font color="#ff0000">b</font>',
     "<c.color-ff0000>a</c>\n<c.color-ff0000>b</c>", r"{\rStyle2}a{\r}\N{\rStyle2}b{\r}", "a\nb"),
    ("&lt;i>{\\an8}&amp;", f"<{JOINER}i>{{{JOINER}\\{JOINER}an8}}&", "&lt;i&gt;{\\an8}&amp;",
     f"<i>\\{{\\{JOINER}an8}}&", "<i>{\\an8}&"),
    ("1 --> 2", f"1 --{JOINER}> 2", "1 --&gt; 2", "1 --> 2", "1 --> 2"),
    ("\n  a\n\t b <br/> c\n", "a b\nc", "a b\nc", r"a b\Nc", "a b\nc"),
    ("<br/>a<br/> <br/>b<br/>", "a\n\u00a0\nb", "a\n\u00a0\nb", "a\\N\u00a0\\Nb", "a\n\u00a0\nb"),
    ("a\x7f\x85&#9;b", "a␡\uFFFD b", "a␡\uFFFD b", "a␡\uFFFD b", "a␡\uFFFD b"),
    ("a <span tts:visibility='hidden'>b</span> c", *4 * ("a c",)),
)

# A region's attributes, the cue's settings, the alignment, the margins of the event, how its text begins.
PLACES = (
    ("", "", 2, "64,64,36", ""),
    ("tts:textAlign='center'", "", 2, "64,64,36", ""),
    ("tts:textAlign='right'", " align:right", 3, "64,64,36", ""),
    ("tts:origin='10% 80%' tts:extent='80% 15%'", " line:80% position:10% size:80% align:left", 7, "128,128,576", ""),
    ("tts:origin='10% 80%' tts:extent='80% 15%' tts:displayAlign='after' tts:textAlign='center'",
     " line:95%,end position:50% size:80%", 2, "128,128,36", ""),
    ("tts:origin='0px 180px' tts:extent='427px 360px' tts:displayAlign='center' tts:textAlign='end'",
     " line:50%,center position:33.36% size:33.36% align:right", 6, "0,853,180", r"{\pos(427,360)}"),
    ("tts:origin='640px 0px' tts:textAlign='start'", " line:0% position:50% size:50% align:left", 7, "640,0,0", ""),
    ("tts:displayAlign='after' tts:textAlign='start'", " line:100%,end position:0% size:100% align:left", 1, "0,0,0", ""),
    ("tts:origin='1281px 0px'", "", 2, "64,64,36", ""),
)

# Begin and end of a paragraph, the offset, the times of its cue in the notation of WebVTT and of ASS.
TIMES = (
    ("1s", "2s", 0, "00:00:01.000 --> 00:00:02.000", "0:00:01.00,0:00:02.00"),
    ("1004ms", "1006ms", 0, "00:00:01.004 --> 00:00:01.006", "0:00:01.00,0:00:01.01"),
    ("1996ms", "1999ms", 0, "00:00:01.996 --> 00:00:01.999", "0:00:02.00,0:00:02.01"),
    ("100:00:00", "100:00:01", 500, "100:00:00.500 --> 100:00:01.500", "100:00:00.50,100:00:01.50"),
    ("1s", "2s", -1500, "00:00:00.000 --> 00:00:00.500", "0:00:00.00,0:00:00.50"),
    ("1s", "2s", -2000, None, "gone before 00:00:00.000"),
    ("1s", "1s", 0, None, "without a begin or without an end after it"),
    ("2s", "1s", 0, None, "without a begin or without an end after it"),
    (None, "1s", 0, None, "without a begin or without an end after it"),
    ("1s", None, 0, None, "without a begin or without an end after it"),
)


def converted(data, target, *options):
    return output_of("convert", "-", "-o", "-", "--to", target, *options, data=data)


def cue_text(data, target):
    """The text of the only cue."""
    text = converted(data, target)
    if target == "ass":
        return text.partition("Dialogue: ")[2].removesuffix("\n").split(",", 9)[9]
    return text if target == "txt" else text.partition("00:00:02")[2].partition("\n")[2]


def in_region(attributes, content="a"):
    body = f"<div><p region='r' begin='1s' end='2s'>{content}</p></div>"
    return tt(body, layout=f"<region xml:id='r' {attributes}/>", root=ROOT_EXTENT)


class Cues(unittest.TestCase):
    def test_texts(self):
        for content, *expected in TEXTS:
            for target, text in zip(FORMATS, expected):
                with self.subTest(content, target=target):
                    ending = {"srt": "\n\n", "vtt": "\n\n", "ass": "", "txt": "\n"}[target]
                    self.assertEqual(cue_text(document(("1s", "2s", content)), target), text + ending)

    def test_white_space_stays_where_it_is_preserved(self):
        for where in ("<body>", "<p "):
            data = document(("1s", "2s", "  a\tb\r\n  c ")).replace(
                where.encode(), where.replace(">", " ").encode() + b'xml:space="preserve"' + where[-1].encode())
            self.assertEqual(converted(data, "txt"), "  a b\n  c \n")

    def test_places(self):
        for attributes, settings, alignment, margins, position in PLACES:
            with self.subTest(attributes):
                self.assertIn(f"00:00:02.000{settings}\na\n", converted(in_region(attributes), "vtt"))
                script = converted(in_region(attributes), "ass")
                self.assertIn(f",{alignment},0,0,0,1\n", script)
                self.assertIn(f",Style1,,{margins},,{position}a\n", script)

    def test_the_start_of_a_line_is_where_its_letters_say(self):
        for content, side in (("a\u05d0", "left"), ("\u05d0a", "right"), ("1. \u201c\u0627", "right"), ("-", "left"),
                              ("\U0001f600 \u4e2d", "left"), ("\U0001e900", "right")):
            other = {"left": "right", "right": "left"}[side]
            for align, shown in (("start", side), ("end", other)):
                data = in_region(f"tts:origin='10% 0%' tts:textAlign='{align}'", content)
                self.assertIn(f"align:{shown}\n", converted(data, "vtt"))

    def test_times(self):
        for begin, end, offset, line, other in TIMES:
            with self.subTest((begin, end, offset)):
                data, options = document((begin, end, "a")), ("--offset", offset, "--quiet")
                if line:
                    self.assertIn(f"\n{line}\n", converted(data, "vtt", *options))
                    self.assertIn(f"\n{line.replace('.', ',')}\n", converted(data, "srt", *options))
                    self.assertIn(f"Dialogue: 0,{other},", converted(data, "ass", *options))
                else:
                    done = run("convert", "-", "-o", "-", "--to", "vtt", *options, data=data)
                    self.assertEqual((done.returncode, done.stdout), (DONE, b"WEBVTT\n\n"))
                    self.assertEqual(done.stderr.decode().splitlines(),
                                     [f"xttml: -: 1 of 1 items left out: {other}", "xttml: -: no text to show"])

    def test_cues_stand_in_the_order_of_their_begins_and_overlap(self):
        data = document(("5s", "6s", "c"), ("1s", "9s", "a"), ("1s", "2s", "b"), ("3s", "4s", " <br/> "))
        self.assertEqual(converted(data, "txt"), "a\n\nb\n\nc\n")
        self.assertEqual(converted(data, "srt"), "".join(
            f"{number}\n00:00:0{begin},000 --> 00:00:0{end},000\n{text}\n\n"
            for number, begin, end, text in ((1, 1, 9, "a"), (2, 1, 2, "b"), (3, 5, 6, "c"))))

    def test_forced_items_alone(self):
        self.assertEqual(output_of("convert", EXAMPLES / "forced.en.ttml", "--forced", "-o", "-", "--to", "txt"),
                         "PLATFORM 9 CLOSED\n")

    def test_a_root_container_without_a_size_is_a_screen(self):
        for extent in ("0px 0px", "4294967295px 720px"):
            script = converted(document(("1s", "2s", "a"), root=f' tts:extent="{extent}"'), "ass")
            self.assertIn("PlayResX: 1280\nPlayResY: 720\n", script)
            self.assertIn(",Style1,,64,64,36,,a", script)

    def test_one_style_for_each_look(self):
        script = output_of("convert", EXAMPLES / "lighthouse.en.ttml", "-o", "-", "--to", "ass")
        self.assertIn("PlayResX: 1280\nPlayResY: 720\n", script)
        styles = [line for line in script.splitlines() if line.startswith("Style: ")]
        self.assertEqual(len(styles), 6)
        self.assertEqual(
            [styles[0], styles[4]],
            ["Style: Style1,sans-serif,36,&H00FFFFFF,&H00FFFFFF,&H5F000000,&H5F000000,0,0,0,0,100,100,0,0,3,2,0,2,0,0,0,1",
             "Style: Style5,sans-serif,32,&H0000FFFF,&H0000FFFF,&H00000000,&H00000000,-1,-1,-1,0,100,100,0,0,1,2,0,7,0,0,0,1"],
        )
        rules = output_of("convert", EXAMPLES / "lighthouse.en.ttml", "-o", "-", "--to", "vtt").split("\n\n")[0].splitlines()
        self.assertEqual(rules[:4],
                         ["WEBVTT", "", "STYLE", "::cue(.background-000000a0) { background-color: #000000a0 }"])
        self.assertEqual(len(rules), 7)


class Files(ToolTest):
    def test_the_format_is_that_of_the_ending_or_of_the_option(self):
        data = document(("1s", "2s", "a"))
        for name, options, target in (
            *((f"film.{target}", (), target) for target in FORMATS),
            ("FILM.SRT", (), "srt"),
            ("film.ass.vtt", (), "vtt"),
            ("subtitles", ("--to", "ass"), "ass"),
            ("text.srt", ("--to", "TXT"), "txt"),
        ):
            with self.subTest(name):
                self.assertEqual(output_of("convert", "-", "-o", self.folder / name, *options, data=data), "")
                self.assertEqual((self.folder / name).read_text(), converted(data, target))
        for target in ("-", "film", "film.ttml", ".srt"):
            self.assertEqual(run("convert", "-", "-o", target, data=data).returncode, WRONG_USAGE)
        self.assertEqual(run("convert", "-", "-o", "-", "--to", "sub", data=data).returncode, WRONG_USAGE)

    def test_a_file_is_replaced_when_asked_and_never_left_half_written(self):
        out = self.folder / "film.srt"
        self.assertEqual(run("convert", "-", "-o", out, data=b"<tt>").returncode, FAILED)
        self.assertFalse(out.exists())
        out.write_text("kept")
        for options, code in (((), FAILED), (("--force",), DONE)):
            self.assertEqual(run("convert", "-", "-o", out, *options, data=document(("1s", "2s", "a"))).returncode, code)
            self.assertEqual(out.read_text() == "kept", code == FAILED)


if __name__ == "__main__":
    main()
