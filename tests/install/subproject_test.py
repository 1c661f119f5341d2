"""A player's own build includes this one (add_subdirectory): it gets the static library that it asks for, and nothing
of the player's build is changed. Its folder has a space and a comma in its name.

Arguments: cmake, the folder of the source, the C compiler, the C++ compiler.
"""

import os
import pathlib
import shlex
import shutil
import sys
import tempfile
import unittest

from commands import run

CMAKE, SOURCE, CC, CXX = sys.argv[1:]
TESTS = pathlib.Path(SOURCE) / "tests"

HOST = """
cmake_minimum_required(VERSION 3.16)
project(player VERSION 7.8 LANGUAGES C CXX)
set(BUILD_SHARED_LIBS OFF)
enable_testing()
add_subdirectory("xttml, linked")
add_executable(player "${PLAYER}")
target_link_libraries(player PRIVATE xttml::xttml)
install(TARGETS player DESTINATION bin)

foreach(name CMAKE_BUILD_TYPE CMAKE_CXX_STANDARD CMAKE_EXPORT_COMPILE_COMMANDS CMAKE_CXX_VISIBILITY_PRESET)
  list(APPEND changed ${${name}})
endforeach()
foreach(name COMPILE_OPTIONS LINK_OPTIONS INCLUDE_DIRECTORIES)
  get_directory_property(value ${name})
  list(APPEND changed ${value})
endforeach()
message(STATUS "changed: [${changed}]")
"""


class Subproject(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="a player, ")
        cls.addClassCleanup(folder.cleanup)
        cls.host = pathlib.Path(folder.name)
        cls.build, cls.prefix = cls.host / "build", cls.host / "installed"
        (cls.host / "CMakeLists.txt").write_text(HOST)
        (cls.host / "xttml, linked").symlink_to(SOURCE)
        cls.configured = cls.configure()
        run(CMAKE, "--build", cls.build, "--parallel", os.cpu_count())

    @classmethod
    def configure(cls, *options):
        compilers = [f"-DCMAKE_C_COMPILER={CC}", f"-DCMAKE_CXX_COMPILER={CXX}"]
        player = TESTS / "api" / "cpp_player_test.cpp"
        return run(CMAKE, "-S", cls.host, "-B", cls.build, f"-DPLAYER={player}", *compilers, *options)

    def files_installed(self):
        run(CMAKE, "--install", self.build, "--prefix", self.prefix)
        self.addCleanup(shutil.rmtree, self.prefix)
        return {file.name for file in self.prefix.rglob("*") if file.is_file()}

    def test_the_player_runs(self):
        run(self.build / "player")
        self.assertEqual([file.suffix for file in self.build.rglob("libxttml.*")], [".a"])

    def test_nothing_of_the_host_is_changed(self):
        self.assertIn("changed: []", self.configured)
        self.assertEqual([*self.build.rglob("CPack*"), *self.build.rglob("compile_commands.json")], [])
        self.assertEqual([*self.build.rglob("*_test"), *self.build.rglob("xttml.pc*")], [])
        self.assertEqual(self.files_installed(), {"player"})

    def test_the_static_library_installed(self):
        self.configure("-DXTTML_INSTALL=ON")
        self.assertLessEqual({"libxttml.a", "x_ttml.h", "xttml.pc", "xttmlConfig.cmake"}, self.files_installed())
        clients, c_player = self.host / "clients", TESTS / "api" / "c_player_test.c"
        run(CMAKE, "-S", TESTS / "install" / "clients", "-B", clients, f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_C_COMPILER={CC}", f"-DCMAKE_CXX_COMPILER={CXX}")
        run(CMAKE, "--build", clients, "--target", "c_player_test")
        run(clients / "c_player_test")

        if not shutil.which("pkg-config"):
            self.skipTest("pkg-config is not installed")
        (found,) = self.prefix.rglob("pkgconfig")
        search = ":".join(filter(None, [str(found), os.environ.get("PKG_CONFIG_PATH", "")]))
        environment = {**os.environ, "PKG_CONFIG_PATH": search}
        flags = shlex.split(run("pkg-config", "--cflags", "--libs", "xttml", env=environment))
        run(CC, "-std=c99", "-D_POSIX_C_SOURCE=200809L", c_player, *flags, "-o", self.host / "c_player")
        run(self.host / "c_player")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
