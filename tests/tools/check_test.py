"""What `check` finds, and that it is true."""

import json
import os
import pty
import re
import subprocess
import time
import unittest

from tool_runs import DONE, EXAMPLES, FAILED, TOOL, WRONG_USAGE, ToolTest, json_of, lines_of, main, run, tt

GOOD = '<p begin="1s" end="2s">x</p>'
PICTURE = '<div %ssmpte:backgroundImage="urn:dece:container:subtitleimageindex:%s.png"/>'
BLOCK = EXAMPLES / "pictures.en.pngs"  # four pictures
TIMED = 'begin="1s" end="2s" '


def p(content="x", attributes="", times=TIMED):
    return tt(f"<div><p {times}{attributes}>{content}</p></div>")


def findings(data, *options):
    """Each finding of a document without its place."""
    done = run("check", "-", *options, data=data)
    *lines, summary = done.stdout.decode().splitlines()
    assert summary.startswith(f"-: {len(lines) or 'nothing'} f"), summary
    assert done.returncode == (FAILED if lines or done.stderr else DONE), done
    return [re.sub(r"^-:\d+:\d+: warning: ", "", line) for line in lines]


NEVER = "it is never on screen"

# A document, what is found
TEXT = [
    (tt(f"<div>{GOOD}</div>"), []),
    # content
    (tt(f"<div>{GOOD}<div>{GOOD}{GOOD}</div></div><div>{GOOD}</div>"), [
        "<div>: 2 paragraphs not shown: only those directly in the body's first div are [paragraph-elsewhere]",
        "<div>: 1 paragraph not shown: only those directly in the body's first div are [paragraph-elsewhere]"]),
    (p("a<![CDATA[b]]>"), ["<p>: text in a CDATA section is not shown [unread-text]"]),
    (p("<SPAN>a</SPAN><Br/><metadata>m</metadata><q>b<q/></q><ruby/><set/>"), [
        "<q>: not read, nor is the text in it [unknown-element]", "<ruby>: not read [unknown-element]",
        "<set>: not read: what is on screen does not change [animation]"]),
    (tt(f"<div>{GOOD}</div></body><body><div>{GOOD}</div>"), [
        "<body>: not read: only the first of its name is [unknown-element]"]),
    (tt(f"<div>{GOOD}</div>", styling="<initial/><x:y xmlns:x='x'/>"), ["<initial>: not read [unknown-element]"]),
    (b'<tt xmlns="http://www.w3.org/2006/10/ttaf1" xmlns:s="http://www.w3.org/2006/10/ttaf1#styling"><body><div>'
     b'<p begin="1s" end="2s" s:color="red"/><p begin="3s" end="4s" s:color="red"/></div></body></tt>', [
         '<tt>: read as TTML 1.0, but in the namespace "http://www.w3.org/2006/10/ttaf1" [root-namespace]',
         '<p> s:color="red": not read, as all 2 attributes in the namespace http://www.w3.org/2006/10/ttaf1#styling '
         '[attribute-namespace]']),
    (tt(f'<div cff:forcedDisplayMode="true"><p {TIMED}cff:forcedDisplayMode="true">a</p>'
        f'<p {TIMED}itts:forcedDisplay="true"/></div>').replace(b' begin="1s" end="2s" itts', b' begin="3s" end="4s" itts'), [
        '<div> cff:forcedDisplayMode="true": not read: it is not forced [forced-display]',
        '<p> itts:forcedDisplay="true": not read: it is not forced [forced-display]']),
    # time
    (p(times='end="2s"'), ["<p>: no begin: it is on screen from the start, and counts as yet to come at any time [no-begin]"]),
    (p(times='begin="1s"'), [f"<p>: no end: {NEVER} [no-end]"]),
    (p(times='begin="1s" dur="2s"'), [f'<p> dur="2s": not read: without an end {NEVER} [dur]']),
    (p(times='begin="1s" dur="2s" end="2s"'), ['<p> dur="2s": not read: its end alone counts [dur]']),
    (tt(f'<div timeContainer="seq">{GOOD}</div>'), [
        '<div> timeContainer="seq": not read: what it holds does not come one after the other [seq]']),
    (tt(f'<div begin="00:00:00.000">{GOOD}</div>'), []),
    (tt(f'<div begin="1s" end="9s">{GOOD}</div>'), [
        '<div> begin="1s": not read: only times of paragraphs and pictures are [container-time]']),
    (p('<span end="1.5s">x</span>'), ['<span> end="1.5s": not read: only times of paragraphs and pictures are [container-time]']),
    (p(times='begin="x"'), [f"<p>: no end: {NEVER} [no-end]",
        f'<p> begin="x": not read (it is not one number with one unit): {NEVER} [unreadable-time]']),
    (p(times='begin="x" end="1s"'), [
        '<p> begin="x": not read (it is not one number with one unit): it is on screen from the start [unreadable-time]']),
    (p(times='begin="2s" end="1s"'), [f'<p> end="1s": comes before its begin: {NEVER} [end-before-begin]']),
    (tt(f"<div>{GOOD}<p begin='1.5s' end='2.5s'/><p begin='2.5s' end='3s'/></div>"), [
        "<p>: hidden from the query by time for 501 ms of its time, first by that of line 1 [hidden]"]),
    (tt(f"<div>{GOOD * 5}</div>"), [
        "<p>: hidden from the query by time for all of its time, first by that of line 1 [hidden]"]),
    (p(times='begin="00:00:01:00" end="00:00:02:00"').replace(b"<tt ", b'<tt ttp:frameRateMultiplier="1000 1001" '), [
        '<tt> ttp:frameRateMultiplier="1000 1001": not read: 30 frames last exactly a second [frame-rate]']),
    (p().replace(b"<tt ", b'<tt ttp:frameRateMultiplier="1000 1001" ttp:timeBase="smpte" '), [
        '<tt> ttp:timeBase="smpte": not read: times count from the beginning of the media [time-base]']),
    # style and region
    (tt(f'<div><p {TIMED}region="r" style="s"/><p begin="3s" end="4s" style="a  b"/></div>', styling='<style xml:id="a"/>'), [
        '<p> region="r": no region is called so [unknown-region]', '<p> style="s": no style is called so [unknown-style]',
        '<p> style="a  b": taken for one name, that of no style: none of them applies [several-styles]']),
    (tt(f'<div><p {TIMED}region="r" style="s"/></div>', styling='<style xml:id="s"/>\n<style xml:id="s" style="t"/>',
        layout='<region xml:id="s"/><region xml:id="r"><style/></region>'), [
        '<style> style="t": not followed: only its own attributes count [style-of-style]',
        '<style> xml:id="s": never used: that of line 1 has the same name [same-identifier]',
        "<style>: not read: only the region's own attributes are [style-in-region]"]),
    (tt(f'<div region="r"><p {TIMED}><span style="s">x</span></p></div>'), [
        '<div> region="r": not read: only those of paragraphs and pictures are [container-reference]',
        '<span> style="s": not read: only those of paragraphs are [container-reference]']),
    # values
    (p("<span tts:color='rgb(255, 255,255)'/><span tts:color='rgb(255, 0,0)'/>", 'tts:backgroundColor="Red"'), [
        '<p> tts:backgroundColor="Red": no colour that is read: counts as opaque white [color]',
        '<span> tts:color="rgb(255, 0,0)": no colour that is read: counts as opaque white [color]']),
    (p(attributes='tts:fontSize="2em" tts:lineHeight="normal"'), [
        '<p> tts:fontSize="2em": not a length that is read: counts as 0 [length]']),
    (tt(f"<div>{GOOD}</div>", styling='<style tts:fontSize="20px" tts:lineHeight="1.5em"/>'
        '<style tts:fontSize="80%" tts:lineHeight="120%"/>'), [
        '<style> tts:lineHeight="1.5em": its unit is not read: counts as a percentage of the style\'s font size [length]',
        '<style> tts:fontSize="80%": of no font size in px: counts as 0 [percentage]',
        '<style> tts:lineHeight="120%": of no font size in px: counts as 0 [percentage]']),
    (p('<span tts:fontSize="50%">x</span><span tts:fontSize="1c">x</span>', 'tts:fontSize="20px" tts:lineHeight="120%"'), [
        '<span> tts:fontSize="1c": not a length that is read: without effect [length]']),
    (p('<span tts:fontSize="50%">x</span>'), ['<span> tts:fontSize="50%": of no font size in px: counts as 0 [percentage]']),
    (tt(f'<div><p {TIMED}tts:origin="1c 1c"/></div>', layout='<region tts:extent="auto"/>', root=' tts:extent="50% 50%"'), [
        '<tt> tts:extent="50% 50%": not a pair of lengths in px: counts as 1024px 768px [area]',
        '<region> tts:extent="auto": not a pair of lengths that is read: counts as 0 [area]',
        '<p> tts:origin="1c 1c": not a pair of lengths that is read: without effect [area]']),
    (tt(f'<div tts:color="red">{GOOD}</div>', styling='<style tts:origin="1px 1px" color="red"/>'), [
        '<style> tts:origin="1px 1px": not read here [styling-elsewhere]', '<style> color="red": not read [styling-namespace]',
        '<div> tts:color="red": not read here [styling-elsewhere]']),
    # images
    (tt(PICTURE % (TIMED, 1) + PICTURE % ("", 31) + PICTURE % ('begin="1s" ', 2)), [
        "<div>: 3 pictures not shown without --images [no-images]",
        '<div> smpte:backgroundImage="urn:dece:container:subtitleimageindex:31…": not shown: the pictures of a block '
        "are numbered 1 to 30 [picture-too-many]",
        "<div>: no end: for want of it the document's pictures cannot be shown [picture-time]"]),
]

PICTURES = [
    (tt(PICTURE % (TIMED, 4)), []),
    (tt(f"<div>{GOOD}</div>" + PICTURE % ('begin="3s" end="4s" region="r" style="s" ', 4)), [
        "<p>: 1 paragraph not shown with --images [text-beside-images]",
        '<div> region="r": no region is called so [unknown-region]',
        '<div> style="s": not read: only those of paragraphs are [container-reference]']),
    (tt(PICTURE % (TIMED, 5) + PICTURE.replace("urn:dece:container:subtitleimageindex:", "") % (TIMED, "a")), [
        '<div> smpte:backgroundImage="urn:dece:container:subtitleimageindex:5.…": not shown: the block has no such picture '
        "[picture-missing]",
        '<div> smpte:backgroundImage="a.png": not shown: no number of a picture as in '
        "urn:dece:container:subtitleimageindex:1.png [picture-number]"]),
    (tt(f"<div><div>{PICTURE % (TIMED, 1)}</div></div>"), [
        '<div> smpte:backgroundImage="urn:dece:container:subtitleimageindex:1.…": not shown: only divisions of the body '
        "and those directly in them show pictures [picture-elsewhere]"]),
]

# A time, why it is not read
TIMES = [
    ("", "it is empty"), ("1:2", None), ("1:2:3:4:5", None), ("5", "it has no unit: h, m, s, ms, f or t"),
    (" 1s", "it is not one number with one unit"), ("1.2.3s", "it is not one number with one unit"),
    ("5s.", "it is not one number with one unit"), ("1h5s", "it is not one number with one unit"),
    ("00:00:61", "minutes and seconds end at 59"), ("00:60:00", "minutes and seconds end at 59"),
    ("00:00:01.5x", "'5x' is no number"), ("00:00:-1", "'-1' is no number"),
    ("00:00:01:25", "there are 25 frames a second, counted from 0"), ("600:00:00", ""), ("3000000s", ""),
    ("99999999999999999999:00:00", ""),
]


class Findings(unittest.TestCase):
    def test_of_texts_and_of_pictures(self):
        for cases, options in ((TEXT, ()), (PICTURES, ("--images", BLOCK))):
            for data, expected in cases:
                with self.subTest(data):
                    self.assertEqual(findings(data, *options), expected)

    def test_pictures_that_cannot_be_shown_are_told_with_the_reason(self):
        done = run("check", "-", "--images", BLOCK, data=tt("\n" + PICTURE % ("", 1)))
        self.assertEqual(done.returncode, FAILED)
        self.assertRegex(done.stdout.decode(), r"\A-:2:1: warning: <div>: no begin: .*\n-: 1 finding, 0 of 1 picture shown\n\Z")
        self.assertRegex(done.stderr, b"begin: ")

    def test_times_that_are_not_read(self):
        for time, fault in TIMES:
            data = p(times=f'begin="1s" end="{time}"').replace(b"<tt ", b'<tt ttp:frameRate="25" ')
            item = json_of("list", "-", data=data)["items"][0]
            with self.subTest(time):
                self.assertEqual(item["end"], 0 if fault is None else -1)
                expected = {None: "counts as 0: a clock time has two or three colons [unreadable-time]",
                            "": f"beyond 2147483647 ms, which is no time: {NEVER} [time-too-large]"}.get(
                                fault, f"not read ({fault}): {NEVER} [unreadable-time]")
                self.assertEqual(findings(data)[0], f'<p> end="{time}": {expected}')

    def test_keywords_count_as_is_said(self):
        for name in ("displayAlign", "fontStyle", "fontWeight", "textAlign", "textDecoration", "visibility"):
            data = p(attributes=f'tts:{name}="other"')
            (finding,) = findings(data)
            word = json_of("list", "-", data=data)["items"][0]["styling"][name]
            self.assertEqual(finding, f'<p> tts:{name}="other": no keyword that is read: counts as {word} [keyword]')
            self.assertEqual(findings(p(attributes=f'tts:{name}="{word}"')), [])

    def test_what_a_trusted_document_refers_to(self):
        data = b'<!DOCTYPE tt [<!ENTITY hi "there">]>' + p("&hi;")
        self.assertEqual(findings(data, "--trusted"), ["<p>: text in a reference to an entity is not shown [unread-text]"])

    def test_attributes_never_read_are_told_when_asked_for(self):
        data = tt(f'<div><p {TIMED}tts:opacity="0"/><p begin="3s" end="4s" tts:opacity="1" ttp:x="1"/></div>')
        self.assertEqual(findings(data), [])
        self.assertEqual(findings(data, "--all"), [
            '<p> tts:opacity="0": not read, as all 2 attributes called tts:opacity [unread-attribute]',
            '<p> ttp:x="1": not read [unread-attribute]'])

    def test_thousands_of_overlaps_take_no_time(self):
        count = 20000
        paragraphs = (f'<p begin="{i}s" end="{2 * count - i}s"/>' for i in range(count))
        self.assertEqual(len(findings(tt(f"<div>{''.join(paragraphs)}</div>"))), count - 1)


class Output(ToolTest):
    def test_places_are_those_of_the_start_tags(self):
        data = tt('<!-- \n -->é<div>\r\n  <p\n begin="1s"/> <p/></div>')
        for encoding in ("utf-8", "utf-16"):
            places = [line.split(" ")[0] for line in run("check", "-", data=data.decode().encode(encoding)).stdout.decode().split("\n")]
            self.assertEqual(places[:2], ["-:3:3:", "-:4:15:"])

    def test_json(self):
        data = tt(f"<div>{GOOD}\n<p/></div>" + PICTURE % (TIMED, 1))
        done = run("check", "-", "--json", data=data)
        self.assertEqual(json.loads(done.stdout), {
            "file": "-",
            "shown": {"paragraphs": 2, "paragraphsShown": 1, "pictures": 1, "picturesShown": 0},
            "findings": [
                {"line": 2, "column": 1, "name": "no-end", "message": f"<p>: no end: {NEVER}"},
                {"line": 2, "column": 11, "name": "no-images", "message": "<div>: 1 picture not shown without --images"},
            ],
        })

    def test_names_are_listed_and_ignored(self):
        listed = [line.split(" ")[0] for line in lines_of("check", "--list")]
        self.assertEqual(len(listed), len(set(listed)))
        found = {re.search(r"\[(.*)\]$", line)[1] for _, lines in TEXT + PICTURES for line in lines}
        self.assertEqual(set(listed) - found, {"time-too-large", "keyword", "unread-attribute"})
        data = p(times='begin="1s" dur="2s"', attributes=' tts:color="Red"')
        self.assertEqual(len(findings(data)), 2)
        self.assertEqual(findings(data, "--ignore", "dur", "--ignore", "color"), [])
        self.assert_ends(WRONG_USAGE, "'nothing'", "check", "--ignore", "nothing", "-")
        self.assert_ends(WRONG_USAGE, "", "check")

    def test_one_unusable_document_of_several(self):
        bad = self.write("bad.ttml", b"<tt>\n<body>")
        done = run("check", EXAMPLES / "forced.en.ttml", bad, EXAMPLES / "frames.de.ttml")
        self.assertEqual((done.returncode, done.stdout.count(b"nothing found")), (FAILED, 2))
        self.assertRegex(done.stderr.decode(), rf"\Axttml: {bad}:2:\d+: .*\n\Z")

    def test_control_characters_do_not_reach_the_terminal(self):
        path = self.write("a\x1b[31m\nb.ttml", p(attributes='style="&#x9b;31m&#10;&#x85;"'))
        for options, lines in (([], 2), (["--json"], 5)):
            text = run("check", path, *options).stdout.decode()
            self.assert_no_control_characters(text)
            self.assertEqual(text.count("\n"), lines)

    def test_progress_goes_to_a_terminal_alone(self):
        file = str(EXAMPLES / "forced.en.ttml")
        leader, follower = pty.openpty()
        for errors in (follower, subprocess.PIPE):
            with subprocess.Popen([*TOOL, "check", "-", file], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                  stderr=errors) as check:
                time.sleep(1.1)  # what is done sooner is not told
                silent = check.communicate(p())[1]
        self.assertEqual(silent, b"")
        os.close(follower)
        self.assertRegex(os.read(leader, 1000), rb"\Axttml: 1 of 2 documents.*\r\x1b\[K\Z")
        os.close(leader)


class Hint(unittest.TestCase):
    def test_every_command_that_shows_items_tells_what_it_does_not_show(self):
        data = tt(f'<div>{GOOD}<p begin="1s"/><p begin="2s" end="1s"/><p end="1s"/></div><div>{GOOD}</div>' + PICTURE % (TIMED, 1))
        hint = b"xttml: -: 3 of 5 paragraphs and 1 of 1 picture are not shown; see xttml check\n"
        for command in (["list", "-"], ["at", "-", "1s"], ["play", "-"], ["list", "-", "--json"]):
            self.assertEqual(run(*command, data=data).stderr, hint)
            self.assertEqual(run(*command, "--quiet", data=data).stderr, b"")
        one = run("list", "-", data=p(times=""))
        self.assertEqual(one.stderr, b"xttml: -: 1 of 1 paragraph is not shown; see xttml check\n")
        pictures = run("list", "-", "--images", BLOCK, data=tt(PICTURE % (TIMED, 1) + PICTURE % (TIMED, 5)))
        self.assertEqual(pictures.stderr, b"xttml: -: 1 of 2 pictures are not shown; see xttml check\n")

    def test_examples_are_clean(self):
        for example in EXAMPLES.glob("*.ttml"):
            images = ["--images", BLOCK] if example.stem == "pictures.en" else []
            self.assertEqual((run("check", example, *images).returncode, run("list", example, *images).stderr), (DONE, b""))


if __name__ == "__main__":
    main()
