"""What a release build is hardened with is found in the finished files.

Arguments: the library, the tool, readelf, the command that runs a program which copies its argument into eight bytes.
"""

import re
import signal
import subprocess
import sys
import unittest

LIBRARY, TOOL, READELF, *OVERLONG_COPY = sys.argv[1:]


def readelf(*arguments):
    return subprocess.run([READELF, "-W", *arguments], stdout=subprocess.PIPE, text=True, check=True).stdout


def imported(file):
    return set(re.findall(r"UND (\w+)", readelf("--dyn-syms", file)))


class Hardening(unittest.TestCase):
    def test_the_relocated_tables_are_read_only(self):
        for file in (LIBRARY, TOOL):
            with self.subTest(file):
                self.assertIn("GNU_RELRO", readelf("--segments", file))
                self.assertRegex(readelf("--dynamic", file), r"BIND_NOW|FLAGS_1.*\bNOW\b")

    def test_no_segment_is_writable_and_executable(self):
        for file in (LIBRARY, TOOL):
            with self.subTest(file):
                self.assertRegex(readelf("--segments", file), r"GNU_STACK .* RW  ")
                self.assertNotIn(" RWE ", readelf("--segments", file))

    def test_the_stack_is_protected(self):
        for file in (LIBRARY, TOOL):
            with self.subTest(file):
                self.assertIn("__stack_chk_fail", imported(file))

    def test_the_c_library_is_fortified(self):
        # asked of a program of its own: what the library hands to the C library depends on the compiler
        self.assertIn("__strcpy_chk", imported(OVERLONG_COPY[-1]))
        self.assertEqual(subprocess.run([*OVERLONG_COPY, "short"], check=False).returncode, 0)
        overlong = subprocess.run([*OVERLONG_COPY, "x" * 9], stderr=subprocess.DEVNULL, check=False)
        self.assertEqual(overlong.returncode, -signal.SIGABRT)

    def test_the_tool_is_loaded_anywhere(self):
        self.assertIn("DYN", readelf("--file-header", TOOL))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
