"""What convert writes is read by FFmpeg, by libass and by two Python modules: as many cues as there are items to show, at
their times, with their text."""

import pathlib
import re
import subprocess
import sys

import srt
import webvtt

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tools"))
from tool_runs import EXAMPLES, ToolTest, document, json_of, main, run  # noqa: E402

DEMUXERS = {"srt": "srt", "vtt": "webvtt", "ass": "ass"}
WORD_JOINER = "\u2060"

DOCUMENTS = {
    **{path.name: path.read_bytes() for path in sorted(EXAMPLES.glob("*.ttml"))},
    "marked up": document(
        ("1s", "2s", "&lt;i>a&lt;/i> &amp;amp; b --> c 00:00:07,000 --> 00:00:08,000"),
        ("1s", "2s", "42<br/><br/>00:00:07.000 --> 00:00:08.000"),
        ("3s", "4s", "NOTE a<br/>STYLE"),
        ("4s", "5s", "<span tts:color='red'>a <span tts:fontWeight='bold'>b</span><br/> c</span>&#x85;"),
    ),
    "out of order": document(("5s", "6s", "c"), ("1s", "9s", "a"), ("2s", None, "d"), ("100:00:00", "101:00:00", "b")),
}


def expected(data, step=1):
    """(begin, end, text) of every cue, times in ms and rounded to steps of so many."""
    items = [item for item in json_of("list", "-", data=data)["items"] if 0 <= item["begin"] < item["end"]]
    items.sort(key=lambda item: item["begin"])
    plain = run("convert", "-", "-o", "-", "--to", "txt", data=data).stdout.decode().removesuffix("\n")
    return [
        (*((item[time] + step // 2) // step * step for time in ("begin", "end")), text)
        for item, text in zip(items, plain.split("\n\n") if items else [], strict=True)
    ]


def milliseconds(time):
    return round(time.total_seconds() * 1000)


def read_by_srt(text):
    return [(milliseconds(cue.start), milliseconds(cue.end), cue.content) for cue in srt.parse(text)]


def ffmpeg(*arguments):
    """What FFmpeg writes; it must have nothing to complain about."""
    done = subprocess.run(["ffmpeg", "-v", "error", *map(str, arguments)], capture_output=True, check=False)
    if done.returncode or done.stderr:
        raise AssertionError(f"{arguments}: {done.stderr.decode()}")
    return done.stdout


class Readers(ToolTest):
    def converted(self, data, target):
        path = self.folder / f"film.{target}"
        self.assertEqual(run("convert", "-", "-o", path, "--force", data=data).returncode, 0)
        return path

    def test_ffmpeg(self):
        for name, data in DOCUMENTS.items():
            for target, demuxer in DEMUXERS.items():
                with self.subTest(name, target=target):
                    path = self.converted(data, target)
                    text = ffmpeg("-f", demuxer, "-i", path, "-c:s", "text", "-f", "srt", "-").decode()
                    self.assertEqual(
                        read_by_srt(text.replace(WORD_JOINER, "")), expected(data, 10 if target == "ass" else 1)
                    )

    def test_python_modules(self):
        markup = re.compile(r"</?(b|i|u|s|c[^>]*|font[^>]*)>")
        for name, data in DOCUMENTS.items():
            with self.subTest(name):
                text = markup.sub("", self.converted(data, "srt").read_text()).replace(WORD_JOINER, "")
                self.assertEqual(read_by_srt(text), expected(data))
                cues = webvtt.read(self.converted(data, "vtt")).captions
                self.assertEqual(
                    [(round(cue.start_in_seconds * 1000), round(cue.end_in_seconds * 1000)) for cue in cues],
                    [(begin, end) for begin, end, _ in expected(data)],
                )

    def test_libass_draws_text_where_the_document_puts_it(self):
        width, height = 1280, 720
        path = self.converted(DOCUMENTS["lighthouse.en.ttml"], "ass")
        for second, left, top, right, bottom in ((2, 128, 576, 1152, 684), (8, 128, 36, 1152, 144)):
            frame = ffmpeg("-f", "lavfi", "-i", f"color=black:s={width}x{height}", "-frames:v", "1", "-vf",
                           f"setpts=PTS+{second}/TB,ass={path}", "-f", "rawvideo", "-pix_fmt", "gray", "-")
            self.assertEqual(len(frame), width * height)
            lit = [i for i, pixel in enumerate(frame) if pixel > 128]
            columns, rows = [i % width for i in lit], [i // width for i in lit]
            self.assertTrue(left <= min(columns) and max(columns) < right, (min(columns), max(columns)))
            self.assertTrue(top <= min(rows) and max(rows) < bottom, (min(rows), max(rows)))


if __name__ == "__main__":
    main()
