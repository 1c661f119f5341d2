"""What a release build is hardened with is found in the finished files.

Arguments: the library, the tool, readelf, the command that runs a program which copies its argument into eight bytes.
"""

import re
import signal
import subprocess
import sys
import unittest

from commands import run

LIBRARY, TOOL, READELF, *OVERLONG_COPY = sys.argv[1:]


def imported(file):
    return set(re.findall(r"UND (\w+)", run(READELF, "-W", "--dyn-syms", file)))


class Hardening(unittest.TestCase):
    def test_the_files(self):
        for file in (LIBRARY, TOOL):
            with self.subTest(file):
                segments = run(READELF, "-W", "--segments", file)
                self.assertIn("GNU_RELRO", segments)
                self.assertRegex(run(READELF, "-W", "--dynamic", file), r"BIND_NOW|FLAGS_1.*\bNOW\b")
                self.assertRegex(segments, r"GNU_STACK .* RW  ")
                self.assertNotIn(" RWE ", segments)
                self.assertIn("__stack_chk_fail", imported(file))
        self.assertIn("DYN", run(READELF, "--file-header", TOOL), "loaded anywhere")

    def test_the_c_library_is_fortified(self):
        # asked of a program of its own: what the library hands to the C library depends on the compiler
        self.assertIn("__strcpy_chk", imported(OVERLONG_COPY[-1]))
        self.assertEqual(subprocess.run([*OVERLONG_COPY, "short"], check=False).returncode, 0)
        overlong = subprocess.run([*OVERLONG_COPY, "x" * 9], stderr=subprocess.DEVNULL, check=False)
        self.assertEqual(overlong.returncode, -signal.SIGABRT)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
