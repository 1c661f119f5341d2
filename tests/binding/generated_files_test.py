"""Generates the binding afresh and compares it with the files of the repository, byte for byte;
holds what they say to a digest; tries names that are not there."""

import hashlib
import importlib
import pathlib
import subprocess
import sys
import tempfile

GENERATED = "binding/generated"
# Of all that the description says: each name, namespace, type, base, facet and accessor.
DIGEST = "3922dda1b9925f833a2a801d3b8fd19f80ee1c8e9008c15be87a31f041459386"


def contents(root):
    return {path.relative_to(root): path.read_bytes()
            for path in (root / GENERATED).rglob("*") if path.is_file()}


def check_names(repository):
    """A name in the description that nothing bears ends the generator with a line that tells it."""
    sys.dont_write_bytecode = True
    sys.path.insert(0, str(repository / "binding"))
    model = importlib.import_module("schema_model")
    for prefix, base, data_type, line in [
            ("a", "a:base", "a:toy", "a:p has a:m of a:toy: there is no such type"),
            ("b", "a:base", "a:base", "a:p has b:m: there is no namespace b"),
            ("a", "a:toy", "a:base", "a:p derives from a:toy: there is no such type")]:
        types = [model.complex_type("base", None),
                 model.complex_type("p", base, model.attribute(f"{prefix}:m", data_type))]
        try:
            model.Schema([model.Namespace("a", "urn:a", "module", types)])
            sys.exit("nothing said: " + line)
        except SystemExit as end:
            if end.code != line:
                sys.exit(f"{end.code}\ninstead of\n{line}")


def main():
    repository = pathlib.Path(sys.argv[1])
    check_names(repository)
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
    digest = hashlib.sha256(b"".join(fresh[path] for path in sorted(fresh))).hexdigest()
    if digest != DIGEST:
        sys.exit(f"the description says something else; if that is meant, its digest is {digest}")


if __name__ == "__main__":
    main()
