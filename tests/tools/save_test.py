"""A saved document has the encoding asked for and shows the same as before."""

import codecs
import pathlib
import tempfile
import unittest

from tool_runs import EXAMPLES, FAILED, WRONG_USAGE, document, lines_of, main, run

HEBREW = EXAMPLES / "market.he.ttml"

# options, how the bytes begin, the codec that reads them
FORMS = (
    ((), b"<?xml", "utf-8"),
    (("--bom",), codecs.BOM_UTF8 + b"<?xml", "utf-8-sig"),
    (("--encoding", "UTF-16"), codecs.BOM_UTF16_LE, "utf-16"),
    (("--encoding", "utf-16be"), b"\0<", "utf-16-be"),
    (("--encoding", "UTF-16BE", "--bom"), codecs.BOM_UTF16_BE, "utf-16"),
    (("--encoding", "UTF-16LE"), b"<\0", "utf-16-le"),
    (("--encoding", "UTF-16", "--big-endian"), codecs.BOM_UTF16_BE, "utf-16"),
    (("--encoding", "ISO-8859-1"), b"<?xml", "latin-1"),
    (("--pretty",), b"<?xml", "utf-8"),
)


class Save(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.out = pathlib.Path(self.folder.name) / "out.ttml"

    def test_forms(self):
        before = lines_of("list", HEBREW)
        for options, opening, codec in FORMS:
            with self.subTest(options):
                self.assertEqual(lines_of("save", HEBREW, "-o", self.out, *options), [""])
                saved = self.out.read_bytes()
                self.assertTrue(saved.startswith(opening), saved[:20])
                self.assertIn("<tt ", saved.decode(codec))
                if "--pretty" not in options:  # indenting reaches into the text of paragraphs
                    self.assertEqual(lines_of("list", self.out), before)
                self.assertEqual(run("save", HEBREW, "-o", "-", *options).stdout, saved)

    def test_from_standard_input(self):
        lines_of("save", "-", "--output", self.out, data=document(("1s", "2s", "text")))
        self.assertEqual(lines_of("play", self.out), ["00:00:01.000  +  text", "00:00:02.001  -  text"])

    def test_failures(self):
        self.out.write_bytes(b"mine")
        for arguments, code, reason in (
            ((HEBREW, "-o", self.out, "--encoding", "no-such"), FAILED, b"Xerces XML error while saving"),
            ((HEBREW, "-o", self.out.parent / "no" / "file"), FAILED, b"No such file"),
            ((HEBREW, "-o", "/dev/full"), FAILED, b"No space left"),
            ((EXAMPLES / "README.md", "-o", self.out), FAILED, b"Xerces SAX error while loading"),
            ((HEBREW,), WRONG_USAGE, b"--output"),
        ):
            done = run("save", *arguments)
            self.assertEqual(done.returncode, code, arguments)
            self.assertIn(reason, done.stderr)
        self.assertEqual(self.out.read_bytes(), b"mine", "what cannot be saved replaces nothing")


if __name__ == "__main__":
    main()
