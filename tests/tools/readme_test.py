"""README's programs, from C++ and from C, on a good document and on bad ones. Usage: readme_test.py CPP C [EMULATOR...]"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

FILM = "<tt {}><body><div><p begin='1s' end='2s'>{}</p></div></body></tt>"
DOCUMENTS = {
    "good": FILM.format("xmlns='http://www.w3.org/ns/ttml'", "text" * 50000),  # more than any fixed buffer
    "attribute": FILM.format("xmlns:p='http://www.w3.org/ns/ttml#parameter' p:frameRate='abc'", ""),
    "malformed": "<tt>",
    "other": "<div/>",
    "missing": None,
}
PROGRAMS = {
    sys.argv[1]: "1000 to 2000 ms, 1024 x 768 px: 200000 UTF-16 units in #FFFFFFFF\n",
    sys.argv[2]: f"1000 ms: 1 on screen\n  {('text' * 64)[:255]}\n",
}
EMULATOR = sys.argv[3:]


class Readme(unittest.TestCase):
    def test_programs(self):
        with tempfile.TemporaryDirectory() as folder:
            for name, document in DOCUMENTS.items():
                path = pathlib.Path(folder) / name
                if document:
                    path.write_text(document)
                for program, line in PROGRAMS.items():
                    with self.subTest(program=program, document=name):
                        done = subprocess.run([*EMULATOR, program, path], capture_output=True, text=True, check=False)
                        good = name == "good"
                        self.assertEqual(done.returncode, 0 if good else 1, done.stderr)
                        self.assertEqual(done.stderr.count("\n"), 0 if good else 1, done.stderr)
                        self.assertEqual(line in done.stdout, good)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
