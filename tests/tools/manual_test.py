"""The man page is well-formed and knows every option and every JSON field."""

import json
import re
import shutil
import subprocess
import unittest

from tool_runs import EXAMPLES, ROOT, json_of, main, output_of, run

PAGE = ROOT / "docs" / "xttml.1"


def keys(value):
    """Every key of every object in a JSON value."""
    if isinstance(value, dict):
        return set(value).union(*map(keys, value.values()))
    if isinstance(value, list):
        return set().union(*map(keys, value))
    return set()


class Manual(unittest.TestCase):
    def setUp(self):
        self.words = set(re.findall(r"[\w-]+", PAGE.read_text().replace("\\-", "-")))

    def test_knows_every_option(self):
        for command in ("list", "at", "play", "check", "extract", "convert", "render", "timeline", "save"):
            for option in re.findall(r"--[a-z][a-z-]+", output_of(command, "--help")):
                self.assertIn(option, self.words)

    def test_knows_every_json_field(self):
        example = EXAMPLES / "lighthouse.en.ttml"
        pictures = [EXAMPLES / "pictures.en.ttml", "--images", EXAMPLES / "pictures.en.pngs"]
        for command in (["list", example], ["at", example, "1s"], ["list", *pictures]):
            fields = keys(json_of(*command, "--full"))
            self.assertGreater(len(fields), 40)
            self.assertLessEqual(fields, self.words)
        found = run("check", EXAMPLES / "pictures.en.ttml", "--json").stdout
        self.assertLessEqual(keys(json.loads(found)), self.words)

    @unittest.skipUnless(shutil.which("groff"), "groff is not installed")
    def test_has_no_formatting_error(self):
        done = subprocess.run(
            ["groff", "-man", "-ww", "-Tutf8", str(PAGE)], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True
        )
        self.assertEqual(done.stderr, b"")


if __name__ == "__main__":
    main()
