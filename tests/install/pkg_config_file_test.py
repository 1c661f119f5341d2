"""xttml.pc is right for relative and absolute directories and for a prefix chosen at the time of the installation.

Arguments: cmake, the folder of the source.
"""

import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest

CMAKE, SOURCE = sys.argv[1:]

PROJECT = f"""
cmake_minimum_required(VERSION 3.16)
project(xttml VERSION 3.4.5 DESCRIPTION "a test" LANGUAGES NONE)
include("{SOURCE}/cmake/pkg_config_file.cmake")
xttml_install_pkg_config_file()
"""

# libdir, includedir -> what the flags say for the prefix /opt/p
CASES = [
    ("lib", "include", "-I/opt/p/include/xttml -L/opt/p/lib -lxttml"),
    ("lib/arch", "share/headers", "-I/opt/p/share/headers/xttml -L/opt/p/lib/arch -lxttml"),
    ("/elsewhere/lib", "/other/include", "-I/other/include/xttml -L/elsewhere/lib -lxttml"),
    ("/elsewhere/lib", "include", "-I/opt/p/include/xttml -L/elsewhere/lib -lxttml"),
    ("lib, too", "its include", "'-I/opt/p/its include/xttml' '-L/opt/p/lib, too' -lxttml"),
]


class PkgConfigFile(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "CMakeLists.txt").write_text(PROJECT)

    def install(self, libdir, includedir, *options):
        build, staging = self.folder / "build", self.folder / "staging"
        shutil.rmtree(staging, ignore_errors=True)
        directories = [f"-DCMAKE_INSTALL_LIBDIR:STRING={libdir}", f"-DCMAKE_INSTALL_INCLUDEDIR:STRING={includedir}", *options]
        for command in (["-S", self.folder, "-B", build, *directories], ["--install", build, "--prefix", "/opt/p"]):
            environment = {**os.environ, "DESTDIR": str(staging)}
            subprocess.run([CMAKE, *command], env=environment, stdout=subprocess.DEVNULL, check=True)
        (found,) = staging.rglob("xttml.pc")
        return found

    def ask(self, file, *questions):
        # a package named xerces-c, so that the answer does not hang on the one of this system
        (file.parent / "xerces-c.pc").write_text("Name: xerces-c\nDescription: none\nVersion: 3.2.0\nCflags: -DXERCES\n")
        environment = {**os.environ, "PKG_CONFIG_LIBDIR": str(file.parent), "PKG_CONFIG_PATH": ""}
        command = ["pkg-config", *questions, "xttml"]
        answer = subprocess.run(command, env=environment, stdout=subprocess.PIPE, text=True, check=True).stdout
        return shlex.split(answer)

    def test_directories(self):
        for libdir, includedir, flags in CASES:
            with self.subTest(libdir=libdir, includedir=includedir):
                file = self.install(libdir, includedir)
                where = libdir if libdir.startswith("/") else f"/opt/p/{libdir}"
                self.assertTrue(str(file).endswith(f"staging{where}/pkgconfig/xttml.pc"), file)
                self.assertEqual(sorted({*self.ask(file, "--cflags", "--libs")} - {"-DXERCES"}), sorted(shlex.split(flags)))
                self.assertEqual(self.ask(file, "--modversion"), ["3.4.5"])
                self.assertEqual(self.ask(file, "--print-requires"), [])
                self.assertEqual(self.ask(file, "--print-requires-private")[0], "xerces-c")

    def test_who_links_the_static_library_links_the_xml_library(self):
        file = self.install("lib", "include", "-DXTTML_KIND=STATIC")
        self.assertEqual(self.ask(file, "--print-requires")[0], "xerces-c")


if __name__ == "__main__":
    if not shutil.which("pkg-config"):
        print("skipped: pkg-config is not installed")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
