"""xttmloverlay among the elements of others: its frames beside what xttml render draws, a file that FFmpeg has muxed,
and nothing that is left behind."""

import pathlib
import shlex
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from tool_runs import EXAMPLES, ToolTest, environment, main, run  # noqa: E402

TEST_VIDEO = "videotestsrc num-buffers=%d ! video/x-raw,format=RGBA,width=320,height=180,framerate=1/1"
TO_PICTURES = "videoconvert ! video/x-raw,format=RGB ! pngenc ! multifilesink location=%s/%%02d.png"
BOTH_STREAMS = ("filesrc location=%s ! decodebin name=file caps=video/x-raw;application/ttml+xml "
                "file. ! video/x-raw ! queue ! xttmloverlay name=overlay ! %s "
                "file. ! application/ttml+xml ! queue ! overlay.text_sink")
PLAYBIN = 'playbin uri=file://%s video-sink="%s"'
ROUNDING = 3  # between drawing into a frame and blending a drawing in
SUBTITLES = b"1\n00:00:01,000 --> 00:00:02,000\nOne\n\n2\n00:00:03,000 --> 00:00:04,000\nThree\n\n"


def command(*words, **variables):
    """Runs a program that says nothing on standard output; gives what it says on standard error."""
    done = subprocess.run(words, capture_output=True, check=True, timeout=120, env=environment(**variables))
    if done.stdout:
        raise AssertionError(f"{words}: {done.stdout}")
    return done.stderr.decode(errors="replace")


def launch(pipeline, **variables):
    return command("gst-launch-1.0", "-q", *shlex.split(pipeline), **variables)


def pixels(folder):
    """The pixels of the pictures 00.png, 01.png, ... in a folder, all of one size."""
    count = len(list(folder.glob("*.png")))
    data = subprocess.run(["ffmpeg", "-v", "error", "-i", folder / "%02d.png", "-f", "rawvideo", "-pix_fmt", "rgb24", "-"],
                          capture_output=True, check=True).stdout
    size = len(data) // count
    return [data[i:i + size] for i in range(0, len(data), size)]


def difference(one, other):
    """The largest difference of two pictures' channels."""
    return max(abs(a - b) for a, b in set(zip(one, other, strict=True)))


class Pipelines(ToolTest):
    def play(self, name, pipeline):
        """A folder with the pictures of a pipeline's frames; nothing is complained about."""
        folder = self.folder / name
        folder.mkdir()
        self.assertEqual(launch(pipeline % (TO_PICTURES % folder)), "")
        return folder

    def mux(self, *more):
        file = self.folder / "film.mp4"
        subtitles = self.write("film.srt", SUBTITLES)
        command("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "color=c=navy:d=6:s=320x180:r=5", "-i",
                str(subtitles), "-c:v", "libvpx-vp9", "-c:s", "ttml", *more, str(file))
        return file

    def test_frames_are_what_render_draws(self):
        bare = self.play("bare", TEST_VIDEO % 12 + " ! %s")
        for name, images in (("lighthouse.en.ttml", ()), ("market.he.ttml", ()),
                             ("pictures.en.ttml", ("--images", EXAMPLES / "pictures.en.pngs"))):
            given = f"images={images[1]}" if images else ""
            shown = self.play(name, f"{TEST_VIDEO % 12} ! xttmloverlay location={EXAMPLES / name} {given} ! %s")
            drawn = self.folder / f"{name} drawn"
            drawn.mkdir()
            for second in range(12):
                frame = f"{second:02}.png"
                run("render", EXAMPLES / name, f"{second}s", "-o", drawn / frame, "--over", bare / frame, *images)
            frames = pixels(shown)
            differences = [difference(*pair) for pair in zip(frames, pixels(drawn), strict=True)]
            self.assertLessEqual(max(differences), ROUNDING, (name, differences))
            self.assertNotEqual(frames, pixels(bare), name)

    def test_a_file_of_ffmpeg_plays(self):
        file = self.mux()
        bare = pixels(self.play("bare", f"filesrc location={file} ! decodebin ! %s"))
        for name, pipeline in (("decodebin", BOTH_STREAMS), ("playbin", PLAYBIN)):
            shown = pixels(self.play(name, pipeline % (file, "%s")))
            changed = [n for n, (before, after) in enumerate(zip(bare, shown, strict=True)) if before != after]
            self.assertEqual(changed, [*range(5, 11), *range(15, 20)], name)  # at five frames a second

    def test_nothing_is_left_alive(self):
        file = self.mux("-t", "2")
        location = EXAMPLES / "lighthouse.en.ttml"
        for pipeline in (f"{TEST_VIDEO % 3} ! xttmloverlay location={location} ! fakesink",
                         f"{TEST_VIDEO % 3} ! xttmloverlay location=/no/such/file ! fakesink",
                         f"{TEST_VIDEO % 3} ! xttmloverlay name=o ! fakesink filesrc location={location} ! o.text_sink",
                         BOTH_STREAMS % (file, "fakesink")):
            said = launch(pipeline, GST_TRACERS="leaks", GST_DEBUG="GST_TRACER:7", GST_DEBUG_NO_COLOR="1")
            self.assertIn("GST_TRACER", said)
            self.assertNotIn(":: object-alive", said)


if __name__ == "__main__":
    main()
