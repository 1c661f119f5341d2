"""Generates the binding afresh and compares it with the files of the repository, byte for byte."""

import pathlib
import subprocess
import sys
import tempfile

GENERATED = "binding/generated"


def contents(root):
    return {path.relative_to(root): path.read_bytes()
            for path in (root / GENERATED).rglob("*") if path.is_file()}


def main():
    repository = pathlib.Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        generator = repository / "binding/generate.py"
        subprocess.run([sys.executable, "-B", generator, folder], check=True)
        fresh = contents(pathlib.Path(folder))
    kept = contents(repository)
    if not fresh:
        sys.exit("the generator wrote nothing")
    differing = sorted(str(path) for path in fresh.keys() | kept.keys() if fresh.get(path) != kept.get(path))
    if differing:
        sys.exit("run binding/generate.py; not as generated: " + ", ".join(differing))


if __name__ == "__main__":
    main()
