"""Installs into a temporary prefix and looks at the tree as a user of it: its headers, its version, its clients."""

import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

from commands import run

HERE = pathlib.Path(__file__).resolve().parent
EXAMPLES = HERE.parent.parent / "examples"
C_PLAYER = HERE.parent / "api" / "c_player_test.c"
CPP_PLAYER = HERE.parent / "api" / "cpp_player_test.cpp"
C_ITEMS = HERE.parent / "api" / "c_items_test.c"
# header, its manual page, the program that calls all its functions
C_HEADERS = [("x_ttml.h", "xttml.3", C_PLAYER), ("x_ttml_items.h", "xttml_items.3", C_ITEMS)]
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]
C99 = ["-std=c99", "-D_POSIX_C_SOURCE=200809L"]
CPP17 = ["-std=c++17"]

WRITTEN = """2024-02-29T10:00:00Z -P1DT2H k:b 12:30:00
1 0 1 0.5 P1Y2M 25
1s to 2s: text
Cannot read value of non-existent attribute.
"""


def read_arguments():
    parser = argparse.ArgumentParser()
    for name in ("cmake", "source", "build", "cc", "cxx", "readelf"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--prefix", action="append", default=[], help="where CMake found a library aside")
    return parser.parse_args()


def facts(item):
    """What the tool and examples/items.py say of an item in the same words."""
    return item["begin"], item["end"], item.get("text", ""), item.get("bytes", item.get("image", {}).get("bytes"))


class InstalledTree(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.work = pathlib.Path(folder.name)
        cls.prefix = cls.work / "prefix"
        run(GIVEN.cmake, "--install", GIVEN.build, "--prefix", cls.prefix)
        cls.include = next(cls.prefix.rglob("x_ttml.h")).parent
        cls.shared_library = next(cls.prefix.rglob("libxttml.so"))
        cls.prefixes = [cls.prefix, *map(pathlib.Path, GIVEN.prefix)]
        folders = [cls.shared_library.parent, *(prefix / "lib" for prefix in cls.prefixes[1:])]
        cls.search("LD_LIBRARY_PATH", folders)
        cls.search("PKG_CONFIG_PATH", [folder / "pkgconfig" for folder in folders])

    @staticmethod
    def search(variable, folders):
        """Puts folders before those of a search path of the environment."""
        os.environ[variable] = ":".join(filter(None, [*map(str, folders), os.environ.get(variable)]))

    def pkg_config(self, *questions):
        if not shutil.which("pkg-config"):
            self.skipTest("pkg-config is not installed")
        return run("pkg-config", *questions).split()

    def check_example(self, program):
        """examples/player.c on text, on pictures, on a hostile document and on none, without a leak."""
        hostile = self.work / "hostile.ttml"
        hostile.write_text("<!DOCTYPE tt SYSTEM '/etc/passwd'>\n<tt/>")
        cases = [
            (["frames.de.ttml"], "2520 ms: 1 on screen\n  576x86 at 72,460 \"Das letzte Bild zählt mit.\"\n", ""),
            (["pictures.en.ttml", "pictures.en.pngs"], "picture of 24747 bytes\n", ""),
            ([hostile], "", f"{hostile}:1:34: A document type declaration is not allowed.\n"),
            (["missing.ttml"], "", f"{EXAMPLES}/missing.ttml: No such file or directory\n"),
        ]
        valgrind = ["valgrind", "-q", "--leak-check=full", "--error-exitcode=9"] if shutil.which("valgrind") else []
        for files, shown, complaint in cases:
            command = list(map(str, [*valgrind, program, *(EXAMPLES / file for file in files)]))
            done = subprocess.run(command, capture_output=True, text=True, check=False)
            self.assertIn(shown, done.stdout)
            self.assertEqual((done.stderr, done.returncode), (complaint, 1 if complaint else 0))

    def check_clients(self, folder):
        run(folder / "c_player_test")
        run(folder / "cpp_player_test")
        self.check_example(folder / "player")
        written = run(folder / "document_tool")
        self.assertIn(WRITTEN, written)
        self.assertIn('<p begin="5s" end="2s">text</p>', written)

    # Headers.

    def test_every_header_compiles_alone(self):
        headers = sorted(self.include.rglob("*.h"))
        self.assertIn(self.include / "x_ttml.h", headers)
        jobs = [(GIVEN.cxx, "c++", CPP17, header) for header in headers]
        for name in ("x_ttml.h", "x_ttml_items.h", "x_ttml_version.h", "xttml/runtime/export.h"):
            jobs.append((GIVEN.cc, "c", C99, self.include / name))

        def compile_twice_included(job):
            compiler, language, standard, header = job
            text = f'#include "{header}"\n' * 2 + "int main(void) { return 0; }\n"
            run(compiler, "-x", language, *standard, *WARNINGS, "-I", self.include, "-fsyntax-only", "-", input=text)

        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            list(pool.map(compile_twice_included, jobs))

    def test_a_player_needs_no_header_of_the_xml_library(self):
        text = run(GIVEN.cxx, "-x", "c++", *CPP17, "-M", "-I", self.include, self.include / "x_ttml.h")
        self.assertIn("display_item.h", text)
        self.assertNotIn("xercesc", text)

    def test_a_program_keeps_its_own_names(self):
        own = self.work / "own"
        text = "#include <x_ttml.h>\n#include <xttml/binding/ttaf1_dfxp.h>\n"
        for name in ("binding/tables.h", "parser/display_item.h", "runtime/export.h", "style/color.h"):
            (own / name).parent.mkdir(parents=True)
            (own / name).write_text(f"struct Own_{(own / name).stem} {{}};\n")
            text += f'#include "{name}"\n'
        text += "Own_tables a; Own_display_item b; Own_export c; Own_color d; TextItem* e; RgbaColor f;\n"
        for first, second in ((own, self.include), (self.include, own)):
            with self.subTest(first=first):
                run(GIVEN.cxx, "-x", "c++", *CPP17, "-I", first, "-I", second, "-fsyntax-only", "-", input=text)

    # The version.

    def test_the_copies_of_the_version_agree(self):
        given = (pathlib.Path(GIVEN.source) / "CMakeLists.txt").read_text()
        version = re.search(r"^project\(xttml VERSION (\d+\.\d+\.\d+) ", given, re.MULTILINE)[1]
        abi = re.search(r"^set\(XTTML_ABI (\d+)\)", given, re.MULTILINE)[1]
        dynamic = run(GIVEN.readelf, "-dVW", self.shared_library)

        self.assertEqual(self.shared_library.resolve().name, f"libxttml.so.{version}")
        self.assertEqual(re.search(r"soname: \[(.*)\]", dynamic)[1], f"libxttml.so.{abi}")
        self.assertEqual((self.shared_library.parent / f"libxttml.so.{abi}").resolve(), self.shared_library.resolve())
        self.assertEqual(set(re.findall(r"\((XTTML_\w+)\)", dynamic)), {f"XTTML_{abi}"})
        self.assertEqual(self.version_in_header(), version)
        self.assertEqual(run(self.prefix / "bin" / "xttml", "--version").split()[-1], version)
        changes = (pathlib.Path(GIVEN.source) / "CHANGELOG.md").read_text()
        self.assertEqual(re.search(r"^## (\S+)", changes, re.MULTILINE)[1], version)
        self.assertEqual(self.pkg_config("--modversion", "xttml"), [version])

    def test_the_tool_is_a_client_of_the_library(self):
        dynamic = run(GIVEN.readelf, "-dW", self.prefix / "bin" / "xttml")
        self.assertIn("Shared library: [libxttml.so.", dynamic)
        self.assertNotRegex(dynamic, "RPATH|RUNPATH")
        self.assertNotIn("TtmlParser", run(GIVEN.readelf, "--symbols", "-W", self.prefix / "bin" / "xttml"))

    def version_in_header(self):
        text = "#include <x_ttml.h>\nXTTML_VERSION XTTML_VERSION_MAJOR XTTML_VERSION_MINOR XTTML_VERSION_PATCH\n"
        read = run(GIVEN.cc, "-x", "c", *C99, "-E", "-P", "-I", self.include, "-", input=text)
        version, *parts = read.splitlines()[-1].split()
        self.assertEqual(version, f'"{".".join(parts)}"')
        return ".".join(parts)

    # Clients.

    def test_clients_by_pkg_config(self):
        flags = self.pkg_config("--cflags", "--libs", "xttml")
        both = self.pkg_config("--cflags", "--libs", "xttml", "xerces-c")
        compilers = [
            (C_PLAYER, [GIVEN.cc, *C99], flags),
            (EXAMPLES / "player.c", [GIVEN.cc, "-std=c99"], flags),
            (CPP_PLAYER, [GIVEN.cxx, *CPP17], flags),
            (HERE / "clients" / "document_tool.cpp", [GIVEN.cxx, *CPP17], both),
        ]
        for source, compiler, libraries in compilers:
            run(*compiler, *WARNINGS, source, *libraries, "-o", self.work / source.stem)
        self.check_clients(self.work)

    def test_clients_by_find_package(self):
        build = self.work / "clients"
        prefixes = ";".join(map(str, self.prefixes))
        found = run(
            GIVEN.cmake, "-S", HERE / "clients", "-B", build, f"-DCMAKE_PREFIX_PATH={prefixes}",
            f"-DCMAKE_C_COMPILER={GIVEN.cc}", f"-DCMAKE_CXX_COMPILER={GIVEN.cxx}",
        )
        self.assertIn(f"xttml_VERSION={self.version_in_header()}", found)
        run(GIVEN.cmake, "--build", build, "--parallel", str(os.cpu_count()))
        self.check_clients(build)

    def test_items_in_python(self):
        for document in sorted(EXAMPLES.glob("*.ttml")):
            block = [block for block in [document.with_suffix(".pngs")] if block.exists()]
            program = [sys.executable, EXAMPLES / "items.py", "--library", self.shared_library, document, *block]
            listed = [json.loads(line) for line in run(*program).splitlines()]
            images = ["--images", *block] if block else []
            tool = json.loads(run(self.prefix / "bin" / "xttml", "list", "--json", document, *images))["items"]
            self.assertGreater(len(listed), 1)
            self.assertEqual([facts(item) for item in listed], [facts(item) for item in tool])

    # The functions.

    def declarations(self, header):
        """The prototypes of a header, {name: text on one line}."""
        text = re.sub(r"/\*.*?\*/", "", (self.include / header).read_text(), flags=re.DOTALL)
        prototypes = [re.sub(r"\s+", " ", found) for found in re.findall(r"^XTTML_API ([^;]*;)", text, re.MULTILINE)]
        return {re.search(r"\b(x_ttml_\w+)\(", prototype)[1]: prototype for prototype in prototypes}

    def test_every_function_is_called_from_c(self):
        for header, _, player in C_HEADERS:
            called = set(re.findall(r"\b(x_ttml_\w+)\(", player.read_text()))
            self.assertEqual(set(self.declarations(header)) - called, set())

    def test_the_manual_pages_give_every_function_as_it_is_declared(self):
        for header, name, _ in C_HEADERS:
            page = (self.prefix / "share" / "man" / "man3" / name).read_text()
            declared = self.declarations(header).values()
            self.assertEqual(sorted(re.findall(r"^\.B (.*\);)$", page, re.MULTILINE)), sorted(declared))
            if shutil.which("groff"):
                run("sh", "-c", 'test -z "$(groff -man -ww -Tutf8 - 2>&1 >/dev/null)"', input=page)


if __name__ == "__main__":
    GIVEN = read_arguments()
    unittest.main(argv=sys.argv[:1])
