"""xttmloverlay beside GStreamer's own elements, in one run: textoverlay with SRT for the time that a frame takes,
ttmlparse and ttmlrender for the time to the first subtitle.

    GST_PLUGIN_PATH=build/players/gstreamer python3 bench/overlay_comparison.py

Needs gst-launch-1.0 and the plugins of gst-plugins-base, pango among them, and of gst-plugins-bad."""

import os
import pathlib
import re
import statistics
import subprocess
import tempfile
import time

VIDEO = "videotestsrc pattern=black num-buffers=%d ! video/x-raw,format=I420,width=1920,height=1080,framerate=25/1"
FRAME = re.compile(r"element-latency, .*element=\(string\)subtitles, .*time=\(guint64\)(\d+), ts=")
SECONDS = 20
RUNS = 7

FRAMES = {
    "xttmloverlay, location": "{video} ! xttmloverlay name=subtitles location={ttml} ! fakesink",
    "xttmloverlay, text_sink": "{video} ! xttmloverlay name=subtitles ! fakesink filesrc location={ttml} ! subtitles.text_sink",
    "textoverlay, SRT": "{video} ! textoverlay name=subtitles auto-resize=false font-desc=Sans,72px ! fakesink filesrc location={srt} ! subparse ! subtitles.text_sink",
}
FIRST = {
    "no subtitles": "{video} ! fakesink",
    "xttmloverlay": "{video} ! xttmloverlay name=o ! fakesink filesrc location={ttml} ! o.text_sink",
    "ttmlparse, ttmlrender": "{video} ! ttmlrender name=o ! fakesink filesrc location={ttml} ! ttmlparse ! o.text_sink",
}


def clock(seconds, separator):
    return f"{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}{separator}000"


def write_subtitles(folder, count):
    """A subtitle a second, each another one, as TTML and as SRT."""
    ttml, srt = folder / f"{count}.ttml", folder / f"{count}.srt"
    cues = [(n, f"Subtitle {n} of many") for n in range(count)]
    ttml.write_text(  # as ttmlparse wants it: a declaration, percentages, spans
        '<?xml version="1.0" encoding="UTF-8"?>\n<tt xmlns="http://www.w3.org/ns/ttml" xmlns:tts="http://www.w3.org/ns/ttml#styling" '
        'xmlns:ttp="http://www.w3.org/ns/ttml#parameter" ttp:cellResolution="32 15" ttp:timeBase="media" xml:lang="en">'
        '<head><styling><style xml:id="s" tts:color="#FFFFFF" tts:fontSize="80%" tts:textAlign="center"/>'
        '</styling><layout><region xml:id="r" tts:origin="10% 80%" tts:extent="80% 15%" '
        'tts:displayAlign="after"/></layout></head><body><div>'
        + "".join(f'<p xml:id="p{n}" region="r" style="s" begin="{clock(n, ".")}" end="{clock(n + 1, ".")}">'
                  f'<span style="s">{text}</span></p>' for n, text in cues)
        + "</div></body></tt>")
    srt.write_text("".join(f"{n + 1}\n{clock(n, ',')} --> {clock(n + 1, ',')}\n{text}\n\n" for n, text in cues))
    return {"ttml": ttml, "srt": srt}


def launch(pipeline, **environment):
    return subprocess.run(["gst-launch-1.0", "-q", *pipeline.split()], check=True, capture_output=True, text=True,
                          env={**os.environ, **environment}).stderr


def frame_times(pipeline):
    """Microseconds in the element for frames with and without a change on screen, medians."""
    said = launch(pipeline, GST_TRACERS="latency(flags=element)", GST_DEBUG="GST_TRACER:7", GST_DEBUG_NO_COLOR="1")
    times = [int(nanoseconds) / 1000 for nanoseconds in FRAME.findall(said)]
    changed = [value for n, value in enumerate(times) if n % 25 == 0 and n > 0]
    same = [value for n, value in enumerate(times) if n % 25 > 1]
    return statistics.median(changed), statistics.median(same)


def first_time(pipeline):
    """Milliseconds and processor milliseconds of a run up to its first frame."""
    start, used = time.monotonic(), os.times()
    launch(pipeline)
    now = os.times()
    return 1000 * (time.monotonic() - start), 1000 * (now.children_user + now.children_system - used.children_user
                                                      - used.children_system)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        files = write_subtitles(folder, SECONDS)
        print(f"{'a frame of 1920 x 1080, I420':32} {'change':>10} {'no change':>10}")
        for words, pipeline in FRAMES.items():
            runs = [frame_times(pipeline.format(video=VIDEO % (25 * SECONDS), **files)) for _ in range(RUNS)]
            print(f"{words:32} {min(run[0] for run in runs):7.0f} us {min(run[1] for run in runs):7.0f} us")
        for count in (500, 2000):
            files = write_subtitles(folder, count)
            print(f"{f'first subtitle of {count}':32} {'time':>10} {'processor':>10}")
            for words, pipeline in FIRST.items():
                runs = [first_time(pipeline.format(video=VIDEO % 1, **files))]
                while len(runs) < RUNS and runs[0][0] < 5000:
                    runs.append(first_time(pipeline.format(video=VIDEO % 1, **files)))
                print(f"{words:32} {min(run[0] for run in runs):7.0f} ms {min(run[1] for run in runs):7.0f} ms")


if __name__ == "__main__":
    main()
