"""Runs the tool for the tests. The arguments of the test program are the command that runs it: its path, behind an
emulator where it is built for another machine."""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

TOOL = [*sys.argv[1:-1], str(pathlib.Path(sys.argv[-1]).resolve())]
ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"

DONE, FAILED, WRONG_USAGE = 0, 1, 2

# Fontconfig keeps some 300 bytes for ever.
os.environ.setdefault("LSAN_OPTIONS", f"print_suppressions=0:suppressions='{ROOT}/tests/tools/abandoned_memory.txt'")

SANITIZER_REPORT = re.compile(rb"ERROR: (Address|Leak)Sanitizer|runtime error:")
LIBRARY_LINE = re.compile(
    rb"^(Initialize Xerces|Terminate Xerces|loadFromFile |load from file|LoadFromFile|XercesTree|declare parser"
    rb"|parse OK|vGenerate|document (start|end) time|Close Document|Document Closed|destruct Parser)",
    re.MULTILINE,
)

# What a document's own flaws bring about on standard error beside the command's work.
HINT = re.compile(rb"^xttml: .*not shown; see xttml check\n", re.MULTILINE)

ROOT_TAG = ('<tt xmlns="http://www.w3.org/ns/ttml" xmlns:tts="http://www.w3.org/ns/ttml#styling" '
            'xmlns:ttp="http://www.w3.org/ns/ttml#parameter" xmlns:cff="http://www.decellc.org/schema/2012/01/cff-tt-meta" '
            'xmlns:smpte="http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt" '
            'xmlns:itts="http://www.w3.org/ns/ttml/profile/imsc1#styling"%s>')


def tt(body, styling="", layout="", root=""):
    """A document with the usual prefixes: what its body, styling and layout hold, the attributes of its root."""
    head = f"<head><styling>{styling}</styling><layout>{layout}</layout></head>"
    return (ROOT_TAG % root + head + f"<body>{body}</body></tt>").encode()


def document(*paragraphs, root=""):
    """A document of paragraphs (begin, end, content); None leaves an attribute out."""
    lines = []
    for begin, end, content in paragraphs:
        times = "".join(f' {name}="{value}"' for name, value in (("begin", begin), ("end", end)) if value)
        lines.append(f"<p{times}>{content}</p>")
    return tt("<div>" + "\n".join(lines) + "</div>", root=root)


def run(*arguments, data=None, output=subprocess.PIPE, **options):
    """Runs the tool; fails on a sanitizer report, a signal and a line of the library on standard output."""
    done = subprocess.run(
        [*TOOL, *map(str, arguments)],
        input=b"" if data is None else data,
        stdout=output,
        stderr=subprocess.PIPE,
        timeout=300,
        check=False,
        **options,
    )
    if SANITIZER_REPORT.search(done.stderr) or done.returncode not in (DONE, FAILED, WRONG_USAGE):
        raise AssertionError(f"xttml {arguments}: {done.returncode}\n{done.stderr.decode(errors='replace')}")
    if LIBRARY_LINE.search(done.stdout or b""):
        raise AssertionError(f"xttml {arguments}: a line of the library among\n{done.stdout.decode()}")
    return done


def output_of(*arguments, data=None):
    """What a run writes that succeeds and complains about nothing, but that a document is not shown whole."""
    done = run(*arguments, data=data)
    if done.returncode != DONE or HINT.sub(b"", done.stderr):
        raise AssertionError(f"xttml {arguments}: {done.returncode}\n{done.stderr.decode(errors='replace')}")
    return done.stdout.decode("utf-8")


def lines_of(*arguments, data=None):
    """The lines of such a run."""
    return output_of(*arguments, data=data).removesuffix("\n").split("\n")


def json_of(*arguments, data=None):
    """The value that such a run writes with --json."""
    return json.loads(output_of(*arguments, "--json", data=data))


def environment(**changes):
    """This process's environment with some variables set."""
    return {**os.environ, **changes}


class ToolTest(unittest.TestCase):
    """A test with a folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, content):
        """A file in the folder."""
        path = self.folder / name
        path.write_bytes(content)
        return path

    def names(self):
        """The files in the folder."""
        return sorted(path.name for path in self.folder.iterdir())

    def assert_ends(self, code, reason, *arguments, data=None):
        """A run ends with a code, writes no result and says why."""
        done = run(*arguments, data=data)
        self.assertEqual((done.returncode, done.stdout), (code, b""), arguments)
        self.assertIn(reason, done.stderr.decode(), arguments)

    def assert_no_control_characters(self, text):
        """Nothing but line ends."""
        self.assertFalse([c for c in text if c != "\n" and (ord(c) < 32 or 127 <= ord(c) < 160)], text)


def main():
    """Runs the tests of the calling module."""
    unittest.main(argv=sys.argv[:1])
