"""The floors of the house: includes run down only, what stands above the library includes what is installed, no two
files include each other, guards are named alike."""

import graphlib
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
FLOORS = ["runtime", "xmltree", "binding", "style", "parser", "api", "render", "tools", "players"]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
PLAYER_HEADERS = ["api/x_ttml.h", "api/x_ttml_items.h"]
OUTPUT = ("runtime/progress_lines.h", "runtime/progress_lines.cpp")


def read_includes(root):
    """{file: [(quote, included name)]} of every source file of the floors, names relative to the root."""
    files = {}
    for floor in FLOORS:
        for path in sorted((root / floor).rglob("*")):
            if path.suffix in (".h", ".c", ".cpp", ".inc", ".def"):
                files[path.relative_to(root).as_posix()] = INCLUDE.findall(path.read_text())
    return files


def floor_of(file):
    return FLOORS.index(file.split("/")[0])


def direction_faults(files):
    """Own files included from above, by a path that is not written from the root, or that do not exist."""
    for file, includes in files.items():
        for quote, name in includes:
            if quote == "<":
                if name in files:
                    yield f"{file} includes its own house's {name} in angle brackets"
            elif name not in files:
                yield f"{file} includes {name}, which is no file of the house"
            elif floor_of(name) > floor_of(file):
                yield f"{file} includes {name} from above"


def interface_faults(files):
    """Files above the library that include what is not installed. The installed headers go by angle brackets."""
    library = FLOORS[:FLOORS.index("api") + 1]
    for file, includes in files.items():
        if file.split("/")[0] not in library:
            for quote, name in includes:
                if name.split("/")[0] in library:
                    yield f"{file} includes {name}, which is not as installed"


def cycle_faults(files):
    """Files that include each other, directly or through others."""
    graph = {file: [name for _, name in includes if name in files] for file, includes in files.items()}
    try:
        graphlib.TopologicalSorter(graph).prepare()
    except graphlib.CycleError as error:
        yield "cycle: " + " <- ".join(error.args[1])


def xml_library_faults(files):
    """The XML library seen from the ground floor, or by a player."""
    reachable, pending = set(), [*PLAYER_HEADERS]
    while pending:
        file = pending.pop()
        if file in files and file not in reachable:
            reachable.add(file)
            pending += [name for _, name in files[file]]
    for file, includes in files.items():
        if (file in reachable or floor_of(file) == 0) and any(name.startswith("xercesc/") for _, name in includes):
            yield f"{file} includes the XML library"


def guard_faults(root, files):
    """Headers whose include guard is not made from their path; a player includes those of api/ without it."""
    for file in files:
        if not file.endswith(".h"):
            continue
        guard = "XTTML_" + re.sub(r"\W", "_", file.removeprefix("api/")).upper()
        if f"#ifndef {guard}\n#define {guard}\n" not in (root / file).read_text():
            yield f"{file} is not guarded by {guard}"


def output_faults(root, files):
    """Files of the library that write to standard output beside the one whose work it is."""
    for file in files:
        if file not in OUTPUT and floor_of(file) < floor_of("tools"):
            if re.search(r"\bstd::(cout|puts|printf|putchar)\b|<iostream>", (root / file).read_text()):
                yield f"{file} writes to standard output"


def faults(root):
    files = read_includes(root)
    return [*direction_faults(files), *interface_faults(files), *cycle_faults(files), *xml_library_faults(files),
            *guard_faults(root, files), *output_faults(root, files)]


class House(unittest.TestCase):
    def test_this_house_is_in_order(self):
        self.assertLessEqual({*PLAYER_HEADERS}, {*read_includes(ROOT)})
        self.assertEqual(faults(ROOT), [])


if __name__ == "__main__":
    unittest.main()
