"""Writes a header that hands every accessor of every wrapper class to a visitor, to the file it is given."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "binding"))
from generate import accessors, qualified_class  # noqa: E402
from schema import SCHEMA  # noqa: E402


def accessor_visit(type_):
    calls = "".join(f"    visit(wrapper.{name});\n" for name, _, _ in accessors(type_))
    return ("template <class Visitor>\n"
            f"void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::{qualified_class(type_)}& wrapper,\n"
            f"                    [[maybe_unused]] Visitor& visit) {{\n{calls}}}\n\n")


def class_visit(types):
    calls = "".join(f"    visit.template Visit<ttaf1_dfxp::{qualified_class(type_)}>({type_.index});\n"
                    for type_ in types)
    return ("/// Calls Visit<class>(type index) for every class that has accessors or text.\n"
            f"template <class Visitor>\nvoid VisitClasses(Visitor& visit) {{\n{calls}}}\n")


def main():
    types = [type_ for type_ in SCHEMA.types if type_.is_complex]
    visits = "".join(map(accessor_visit, types))
    target = pathlib.Path(sys.argv[1])
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(f'#pragma once\n#include "binding/ttaf1_dfxp.h"\n\n{visits}{class_visit(types)}',
                      encoding="utf-8")


if __name__ == "__main__":
    main()
