"""A saved document has the encoding asked for and shows the same as before."""

import codecs

from tool_runs import EXAMPLES, FAILED, WRONG_USAGE, ToolTest, document, json_of, lines_of, main, run

HEBREW = EXAMPLES / "market.he.ttml"

# options, how the bytes begin, the codec that reads them
FORMS = (
    ((), b"<?xml", "utf-8"),
    (("--bom",), codecs.BOM_UTF8 + b"<?xml", "utf-8-sig"),
    (("--encoding", "UTF-16"), codecs.BOM_UTF16_LE, "utf-16"),
    (("--encoding", "utf-16be"), b"\0<", "utf-16-be"),
    (("--encoding", "UTF-16BE", "--bom"), codecs.BOM_UTF16_BE, "utf-16"),
    (("--encoding", "UTF-16LE"), b"<\0", "utf-16-le"),
    (("--encoding", "UTF-16BE", "--big-endian"), b"\0<", "utf-16-be"),
    (("--encoding", "UTF-16", "--big-endian"), codecs.BOM_UTF16_BE, "utf-16"),
    (("--encoding", "ISO-8859-1"), b"<?xml", "latin-1"),
    (("--pretty",), b"<?xml", "utf-8"),
)


class Save(ToolTest):
    def setUp(self):
        super().setUp()
        self.out = self.folder / "out.ttml"

    def test_forms(self):
        before = lines_of("list", HEBREW)
        for options, opening, codec in FORMS:
            with self.subTest(options):
                self.assertEqual(lines_of("save", HEBREW, "-o", self.out, "--force", *options), [""])
                saved = self.out.read_bytes()
                self.assertTrue(saved.startswith(opening), saved[:20])
                self.assertIn("<tt ", saved.decode(codec))
                if "--pretty" not in options:  # indenting reaches into the text of paragraphs
                    self.assertEqual(lines_of("list", self.out), before)
                self.assertEqual(run("save", HEBREW, "-o", "-", *options).stdout, saved)

    def test_failures(self):
        self.out.write_bytes(b"mine")
        force = (HEBREW, "--force", "-o", self.out)
        for code, reason, *arguments in (
            (FAILED, "the encoding 'no-such' is not known", *force, "--encoding", "no-such"),
            (FAILED, "the encoding '' is not known", *force, "--encoding", ""),
            (FAILED, "'UTF-7'", *force, "--encoding", "UTF-7"),
            (WRONG_USAGE, "no meaning in UTF-16LE", *force, "--encoding", "UTF-16LE", "--big-endian"),
            (WRONG_USAGE, "no meaning in UTF-8", *force, "--big-endian"),
            (FAILED, "out.ttml: exists; --force replaces it", HEBREW, "-o", self.out),
            (FAILED, "Is a directory", HEBREW, "-o", self.folder, "--force"),
            (FAILED, "No such file", HEBREW, "-o", self.folder / "no" / "file"),
            (FAILED, "No space left", HEBREW, "-o", "/dev/full"),
            (FAILED, "README.md:1:1: ", EXAMPLES / "README.md", "-o", self.out),
            (WRONG_USAGE, "--output", HEBREW),
        ):
            self.assert_ends(code, reason, "save", *arguments)
        deep = document((None, None, "<span>" * 10001 + "</span>" * 10001))
        done = run("save", "-", "--trusted", "-o", "-", data=deep)
        self.assertEqual((done.returncode, done.stderr), (FAILED, b"xttml: -: nests elements too deep to be saved\n"))
        self.assertEqual(self.out.read_bytes(), b"mine", "what cannot be saved replaces nothing")
        self.assertEqual(self.names(), ["out.ttml"])

    def test_what_is_replaced_keeps_its_mode_and_its_links(self):
        target = self.folder / "target.ttml"
        target.write_bytes(b"old")
        target.chmod(0o640)
        self.out.symlink_to(target)
        lines_of("save", HEBREW, "-o", self.out, "--force")
        self.assertTrue(self.out.is_symlink())
        self.assertEqual((target.stat().st_mode & 0o777, target.read_bytes()[:5]), (0o640, b"<?xml"))

    def test_nothing_is_lost_on_the_way(self):
        text = "a&#13;b &#x1F600; &amp;amp; <![CDATA[<c> ]]>]]&gt;\u20ac\u05d0"
        data = document(("1s", "2s", text)).replace(b"<p ", "<p xml:id='x&#10;\t&quot;\u00e9' ".encode())
        shown = json_of("list", "-", data=data)["items"]
        for encoding in ("UTF-8", "UTF-16", "ISO-8859-1", "windows-1252", "US-ASCII"):
            saved = run("save", "-", "-o", "-", "--encoding", encoding, data=data)
            self.assertEqual(saved.returncode, 0, saved.stderr)
            self.assertEqual(json_of("list", "-", data=saved.stdout)["items"], shown)


if __name__ == "__main__":
    main()
