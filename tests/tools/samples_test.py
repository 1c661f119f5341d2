"""Every sample document loads and generates without a crash, a leak or a sanitizer report.

The samples stand in ../shared/samples beside the checkout, or where XTTML_SAMPLES says.
"""

import json
import os
import pathlib
import sys

from tool_runs import DONE, ROOT, run

SKIPPED = 77


def check(document):
    """Whether the document was usable; raises when the tool misbehaves."""
    done = run("list", "--json", document)
    if done.returncode == DONE:
        json.loads(done.stdout.decode("utf-8"))
        for command in ("list", "play"):
            if run(command, document).returncode != DONE:
                raise AssertionError(f"{command} fails where list --json succeeds: {document}")
    from_memory = run("list", "--json", "-", data=document.read_bytes()).stdout
    if from_memory != done.stdout.replace(json.dumps(str(document)).encode(), b'"-"', 1):
        raise AssertionError(f"not the same from memory: {document}")
    return done.returncode == DONE


def main():
    folder = pathlib.Path(os.environ.get("XTTML_SAMPLES", ROOT.parent / "shared" / "samples"))
    documents = sorted(path for path in folder.rglob("*") if path.suffix in (".xml", ".ttml", ".dfxp"))
    if not documents:
        print(f"skipped: no sample documents in {folder}")
        return SKIPPED
    usable = sum(check(document) for document in documents)
    print(f"{len(documents)} documents, {usable} usable")
    return 0 if usable else 1


if __name__ == "__main__":
    sys.exit(main())
