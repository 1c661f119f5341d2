"""The limits of untrusted documents are the same in the build, in SECURITY.md and in the man page."""

import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class LimitsTable(unittest.TestCase):
    def test_is_the_same_everywhere(self):
        def rows(file, pattern):
            return re.findall(pattern, (ROOT / file).read_text(), re.MULTILINE)

        built = rows("cmake/untrusted_limits.cmake", r"^xttml_untrusted_limit\((\w+) (\d+) ")
        self.assertEqual(rows("SECURITY.md", r"^\| `(\w+)` \| (\d+) \|"), built)
        self.assertEqual(rows("docs/xttml_items.3", r'^\.BR ([A-Z_]+) " \((\d{2,})\)"'), built)
        self.assertGreater(len(built), 10)


if __name__ == "__main__":
    unittest.main()
