"""The tool's options, exit codes, inputs and outputs."""

import json
import os
import subprocess
import unittest

from tool_runs import (DONE, EXAMPLES, FAILED, TOOL, WRONG_USAGE, ToolTest, document, environment, json_of, lines_of,
                       main, output_of, run)

FORCED = EXAMPLES / "forced.en.ttml"
COMMANDS = ("list", "at", "play", "extract", "convert", "render", "timeline", "save")


class Usage(unittest.TestCase):
    def test_wrong_usage_ends_with_2_and_says_why(self):
        for words in (
            "", "show FILM", "list", "--json", "play FILM more", "play FILM --full", "list FILM --offset",
            "list FILM --offset 1.5", "list FILM --combine", "at FILM", "at FILM soon", "at FILM 1000 -5",
            "play FILM --from x", "play FILM --step 0", "play FILM --from 2s --to 1s",
        ):
            arguments = [FORCED if word == "FILM" else word for word in words.split()]
            with self.subTest(arguments):
                done = run(*arguments)
                self.assertEqual((done.returncode, done.stdout), (WRONG_USAGE, b""))
                command = f"{arguments[0]} " if arguments and arguments[0] in COMMANDS else ""
                self.assertRegex(done.stderr.decode(), rf"\Axttml: .+\nTry 'xttml {command}--help'\.\n\Z")

    def test_the_reason_names_what_was_meant(self):
        for arguments, reason in (
            ([], "the commands are list, at, play, check, extract, convert, render, timeline, save"),
            (["lst", FORCED], "'lst' is neither a command nor a file; did you mean 'list'?"),
            (["show"], "'show' is neither a command nor a file; the commands are list"),
            (["play", FORCED, "--stop", "100"], "not expected: --stop 100"),
        ):
            self.assertIn(reason, run(*arguments).stderr.decode())

    def test_a_file_alone_is_listed(self):
        for words in ([FORCED], ["--json", FORCED], [FORCED, "--offset", "5"]):
            self.assertEqual(output_of(*words), output_of("list", *words))
        self.assertEqual(output_of("-", data=FORCED.read_bytes()), output_of("list", FORCED))

    def test_help_shows_examples_and_exit_codes(self):
        for command in COMMANDS:
            self.assertIn("Exit codes: 0", output_of(command, "--help"))
        self.assertIn("xttml at film.ttml 1500", output_of("--help"))


class UnusableDocuments(ToolTest):
    def reason(self, arguments, data=b""):
        done = run(*arguments, data=data)
        self.assertEqual((done.returncode, done.stdout), (FAILED, b""))
        lines = done.stderr.decode().split("\n")
        self.assertEqual(lines[1:], [""], "one line")
        prefix = f"xttml: {arguments[1]}:"
        self.assertTrue(lines[0].startswith(prefix), lines[0])
        return lines[0][len(prefix):].lstrip()

    def test_what_is_no_readable_file(self):
        for file, reason in (
            (f"{self.folder}/none.ttml", "No such file or directory"),
            ("", "No such file or directory"),
            (self.folder, "Is a directory"),
            (f"{FORCED}/below", "Not a directory"),
            ("http://127.0.0.1:1/film.ttml", "No such file or directory"),
            ("file:///etc/passwd", "No such file or directory"),
        ):
            self.assertEqual(self.reason(["list", file]), reason)

    def test_a_local_path_that_looks_like_an_address_stays_local(self):
        path = "http://127.0.0.1:1/film.ttml"
        os.makedirs(self.folder / "http:/127.0.0.1:1")
        self.write(path, document(("1s", "2s", "here")))
        self.assertIn(b"here", run("list", path, cwd=self.folder).stdout)

    def test_what_is_no_usable_document(self):
        cases = (
            (b"", r"1:1: \w"),
            (b"plain text", r"1:1: \w"),
            (b"<tt>\n <body>", r"2:8: \w"),
            (b"<a/>", "no tt root element$"),
            (document(("1s", "2s", "x"), root=' ttp:frameRate="fast"'), "ttp:frameRate: 'fast'"),
            (document(("1s", "2s", "x")).replace(b"<p ", b'<p cff:forcedDisplayMode="maybe" '),
             "forcedDisplayMode: 'maybe'"),
            (b'<!DOCTYPE tt SYSTEM "tt.dtd"><tt/>', r"1:\d+: A document type declaration is not allowed.*--trusted"),
        )
        for data, expected in cases:
            with self.subTest(data):
                file = self.write("film.ttml", data)
                for command, *rest in (["list"], ["play"], ["at", "0"], ["save", "-o", "-"]):
                    if command == "save" and "'" in expected:  # reads no value
                        continue
                    from_file = self.reason([command, file, *rest])
                    self.assertEqual(from_file, self.reason([command, "-", *rest], data))
                    self.assertRegex(from_file, rf"\A{expected}")

    def test_control_characters_do_not_reach_the_terminal(self):
        self.assert_no_control_characters(self.reason(["list", "-"], b"<tt>\n</t\xc2\x9bt>"))

    def test_a_trusted_document_names_others_beside_it(self):
        other = self.write("hi.txt", b"there")
        film = self.write("film.ttml", b'<!DOCTYPE tt [<!ENTITY hi SYSTEM "hi.txt">]>'
                                       b"<tt><body><div><p>x<span>&hi;</span></p></div></body></tt>")
        self.assertEqual(self.reason(["list", film])[:2], "1:")
        self.assertIn("1 item", lines_of("list", film, "--trusted")[0])
        other.unlink()
        self.assertIn("hi.txt", self.reason(["list", film, "--trusted"]))


class Inputs(ToolTest):
    def test_several_documents_and_one_that_is_unusable(self):
        frames = EXAMPLES / "frames.de.ttml"
        alone = {file: run("list", file).stdout.decode() for file in (FORCED, frames)}
        done = run("list", FORCED, "/none.ttml", frames)
        self.assertEqual(done.stdout.decode(), "".join(f"{file}: {table}" for file, table in alone.items()))
        self.assertEqual((done.returncode, done.stderr), (FAILED, b"xttml: /none.ttml: No such file or directory\n"))
        objects = output_of("list", FORCED, frames, "--json")
        self.assertEqual(objects, output_of("list", FORCED, "--json") + output_of("list", frames, "--json"))

    def test_standard_input_gives_what_the_file_gives(self):
        for example in sorted(EXAMPLES.glob("*.ttml")):
            data = example.read_bytes()
            for command in (["list"], ["list", "--json"], ["play"], ["at", "2s", "--json"]):
                from_file = output_of(command[0], example, *command[1:]).replace(str(example), "-")
                self.assertEqual(from_file, output_of(command[0], "-", *command[1:], data=data))

    def test_paths_in_any_script_under_any_locale(self):
        for name in ("-film.ttml", "Größe 50%.ttml", "עברית.ttml", "100%25#1?.ttml", "caf\udce9.ttml"):
            self.write(name, document(("1s", "2s", "here")))
            for locale in ("C", "C.UTF-8"):
                done = run("list", "--json", "--", name, cwd=self.folder, env=environment(LC_ALL=locale))
                self.assertEqual(json.loads(done.stdout.decode())["items"][0]["text"], "here", done.stderr)

    def test_offset_moves_every_time(self):
        data = document(("1s", "2s", "a"), (None, None, "b"))
        for offset, times in ((500, [1500, 2500]), (-1500, [-500, 500]), (2147483647, [2147484647, 2147485647])):
            listed = json_of("list", "-", "--offset", offset, data=data)
            self.assertEqual([[item["begin"], item["end"]] for item in listed["items"]], [times, [-1, -1]])
        table = lines_of("list", "-", "--offset", "-1500", data=data)
        self.assertRegex(table[2], r"-00:00:00\.500 +00:00:00\.500")
        self.assertRegex(table[3], r"2 +- +- ")
        for offset, begin in ((5000, 6000), (-1500, -500)):
            shown = output_of("play", "-", "--json", "--offset", offset, data=data).splitlines()
            self.assertEqual([json.loads(line)["time"] for line in shown], [begin, begin + 1001])
            found = json_of("at", "-", str(max(begin, 0)), str(begin + 1001), "--offset", offset, data=data)
            self.assertEqual([len(answer["items"]) for answer in found], [1, 0])
        before = json_of("at", "-", "0", "--offset", 5000, data=document((None, "2s", "a")))[0]
        self.assertEqual((before["items"], before["next"]["end"]), ([], 7000))

    def test_many_items(self):
        count = 3000
        data = document(*((f"{i}s", f"{i}.9s", f"line {i}") for i in range(count)))
        self.assertEqual(len(lines_of("list", "-", data=data)), count + 2)
        listed = json_of("list", "-", data=data)
        self.assertEqual([item["text"] for item in listed["items"]], [f"line {i}" for i in range(count)])
        self.assertEqual(len(lines_of("play", "-", data=data)), 2 * count)


class Texts(unittest.TestCase):
    DATA = document(("1s", "2s", "\n  a&#x9;b\nc <br/> d&#x85;&#x9B;[2J\U0001F600\u05D0 &lt;&amp;"))

    def test_lines_show_breaks_no_control_character_and_white_space_as_a_viewer_does(self):
        for command in (["list"], ["play"], ["at", "1s"], ["at", "1s", "--combine"]):
            output = output_of(command[0], "-", *command[1:], data=self.DATA)
            self.assertIn("  a b c⏎d\uFFFD\uFFFD[2J\U0001F600\u05D0 <&", output)

    def test_json_holds_the_text_as_it_is(self):
        item = json_of("list", "-", data=self.DATA)["items"][0]
        self.assertEqual(item["text"], "\n  a\tb\nc \n d\x85\x9b[2J\U0001F600\u05D0 <&")
        self.assertEqual([run.get("lineBreak") for run in item["runs"]], [None, True, None])
        merged = json_of("at", "-", "1s", "--combine", data=self.DATA)[0]["merged"]
        self.assertEqual(merged, item["text"])

    def test_document_without_items(self):
        for data in (b'<tt xmlns="http://www.w3.org/ns/ttml"/>', document()):
            self.assertIn("0 items", lines_of("list", "-", data=data)[0])
            self.assertEqual(json_of("list", "-", data=data)["items"], [])
            self.assertEqual(lines_of("play", "-", data=data), ["nothing comes on screen"])
            self.assertIn("nothing to come", lines_of("at", "-", "0", data=data)[1])


class LibraryLines(ToolTest):
    def test_verbose_shows_them_on_standard_error_only(self):
        for file, data in ((FORCED, None), ("-", FORCED.read_bytes())):
            quiet = run("list", file, data=data)
            verbose = run("list", file, "--verbose", data=data)
            self.assertEqual((quiet.stderr, quiet.stdout), (b"", verbose.stdout))
            told = verbose.stderr.decode().splitlines()
            self.assertEqual(told[0], "Initialize Xerces")
            self.assertLess(told.index("load from file ok"), told.index("document start time 1000"))
            self.assertEqual(told[-1], "Terminate Xerces")

    def test_verbose_keeps_the_reason_of_a_failure_last(self):
        told = run("list", "-", "--verbose", data=b"<a/>").stderr.decode().splitlines()
        self.assertIn("load from file failed", told)
        self.assertEqual(told[-1], "xttml: -: no tt root element")

    def test_they_bring_no_control_character(self):
        for data in (document(root=' xml:lang="a&#10;document&#9;&#x11B;"'), "<tt>\n</t\u011b\x9b>".encode()):
            self.assert_no_control_characters(run("list", "-", "--verbose", data=data).stderr.decode())


class FailingOutput(unittest.TestCase):
    def check(self, done):
        self.assertEqual(done.returncode, FAILED)
        self.assertRegex(done.stderr, rb"\Axttml: cannot write to standard output: [^\n]+\n\Z")

    def test_full_disk(self):
        with open("/dev/full", "wb") as full:
            for arguments in (["--help"], ["list", FORCED], ["list", FORCED, "--json"], ["play", FORCED]):
                self.check(run(*arguments, output=full))

    def test_reader_gone(self):
        reader, writer = os.pipe()
        os.close(reader)
        for arguments in (["--help"], ["list", FORCED], ["play", FORCED, "--realtime"], ["save", FORCED, "-o", "-"]):
            done = run(*arguments, output=writer)
            self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        os.close(writer)

    def test_closed(self):
        done = subprocess.run(
            ["sh", "-c", '"$@" >&-', "sh", *TOOL, "list", str(FORCED)], stderr=subprocess.PIPE, check=False
        )
        self.check(done)


if __name__ == "__main__":
    main()
