"""Bash completes every command, every option and the values of options."""

import re
import shlex
import shutil
import subprocess
import unittest

from tool_runs import ROOT, TOOL, ToolTest, main, output_of

SCRIPT = ROOT / "tools" / "xttml" / "completion" / "xttml.bash"

# What the shell does at a TAB; where completion changes what happens without a match it says so.
ASK = """
source "$1"; tool=$2; shift 2
compopt() { echo "compopt $*"; }
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
_xttml "$tool" "${!#}" "${COMP_WORDS[COMP_CWORD - 1]}"
printf '%s\\n' "${COMPREPLY[@]}"
"""
FILES, FOLDERS, NOTHING = [], "compopt -o dirnames +o default".split(), "compopt +o default".split()


@unittest.skipUnless(shutil.which("bash"), "bash is not installed")
class Completion(ToolTest):
    def setUp(self):
        super().setUp()
        self.tool = self.write("xttml", f'#!/bin/sh\nexec {shlex.join(TOOL)} "$@"\n'.encode())
        self.tool.chmod(0o755)

    def completed(self, *words):
        """The answers to words, the last of which is being typed."""
        done = subprocess.run(
            ["bash", "--norc", "-c", ASK, "bash", str(SCRIPT), str(self.tool), "xttml", *words],
            capture_output=True, text=True, check=True,
        )
        self.assertEqual(done.stderr, "")
        return done.stdout.split()

    def test_every_command_and_every_option(self):
        commands = re.findall(r"^  ([a-z]+) ", output_of("--help").partition("Subcommands:")[2], re.MULTILINE)
        commands = commands[:commands.index("xttml")]
        self.assertEqual(self.completed(""), commands)
        for command in commands:
            self.assertEqual(self.completed(command[:-1]), [command])
            options = re.findall(r"(?<![\w-])--?[a-z][a-z-]*", output_of(command, "--help"))
            self.assertEqual(set(self.completed(command, "film.ttml", "-")), set(options))

    def test_options_without_a_command_are_those_of_list_and_of_all(self):
        self.assertLessEqual({"--json", "--version"}, set(self.completed("-")))
        self.assertEqual(self.completed("film.ttml", "--f"), ["--full"])

    def test_values(self):
        for words, expected in (
            (["film"], FILES),
            (["list", ""], FILES),
            (["save", "film.ttml", "-o", ""], FILES),
            (["list", "--images", "b"], FILES),
            (["render", "--over", "f"], FILES),
            (["extract", "--to", "p"], FOLDERS),
            (["convert", "--offset", ""], NOTHING),
            (["convert", "film.ttml", "--to", ""], ["srt", "vtt", "ass", "txt"]),
            (["convert", "--to", "=", "v"], ["vtt"]),
            (["convert", "--to", "="], ["srt", "vtt", "ass", "txt"]),
        ):
            self.assertEqual(self.completed(*words), expected, words)


if __name__ == "__main__":
    main()
