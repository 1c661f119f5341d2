"""Writes the tables and wrapper classes of the binding."""

import argparse
import pathlib

from schema import SCHEMA

HEAD = "// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.\n"
SOURCES = pathlib.PurePath("binding/generated")

# The document class itself is written by hand, over a generated base.
DOCUMENT_TYPE = "ttaf1_dfxp"
DOCUMENT_BASE = "DocumentElements"

WHITESPACE = {None: "INHERITED", "preserve": "PRESERVE", "replace": "REPLACE", "collapse": "COLLAPSE"}

MODULE_TITLES = {
    "xml_schema": "The built-in types of XML Schema.",
    "datatype": "The simple types of TTML attributes.",
    "core": "The types of xml:lang, xml:space and cff:forcedDisplayMode.",
    "smpte": "SMPTE-TT: background images, data, images and information, with their attributes' types.",
    "metadata": "Metadata (TTML 1.0, 12).",
    "parameter": "Profiles and their features and extensions (TTML 1.0, 6.1).",
    "content": "Content: body, div, p, span and br (TTML 1.0, 7.1).",
    "layout": "Layout and regions (TTML 1.0, 9.1).",
    "styling": "Styling and styles (TTML 1.0, 8.1).",
    "animation": "Animation (TTML 1.0, 11.1).",
    "document": "The document, tt and head (TTML 1.0, 7.1).",
}


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


# Table rows.


def namespace_rows():
    return "".join(
        f"    {{&binder, {quoted(n.uri)}, {quoted(n.prefix)}, {n.first_type}, {n.end_type}}}, // {n.index}\n"
        for n in SCHEMA.namespaces)


def type_rows():
    lines = []
    for namespace in SCHEMA.namespaces:
        if namespace.types:
            lines.append(f"    // {namespace.prefix}\n")
        lines += [type_row(namespace, type_) for type_ in namespace.types]
    return "".join(lines)


def type_row(namespace, type_):
    base = SCHEMA.base(type_)
    whitespace = next((facet.value for facet in type_.facets if facet.name == "whitespace"), None)
    return (f"    {{&binder, {namespace.index}, {quoted(type_.name)}, {base.index if base else -1}, "
            f"{type_.first_member}, {type_.end_member}, {type_.facet_index}, "
            f"{WHITESPACE[whitespace]}, {formatter_slot(type_)}}}, "
            f"// {type_.index}{'' if type_.name else ' ' + type_.class_name}\n")


def formatter_slot(type_):
    if type_.is_complex and not type_.text:
        return "nullptr"
    return f"&formatterSlots[{SCHEMA.inherited(type_, 'slot', 'ANY_SIMPLE_TYPE')}]"


def member_rows():
    return grouped_rows(SCHEMA.members, member_row)


def member_row(index, owner, member):
    uri = f"uri({SCHEMA.namespace(member.prefix).index})" if member.prefix else '""'
    data_type = SCHEMA.type(member.data_type)
    kind = "ELEMENT" if member.is_element else "ATTRIBUTE"
    return (f"{{&binder, {uri}, {quoted(member.local_name)}, {owner.index}, {data_type.index}, {kind}, "
            f"{member.min_occurs}, {member.max_occurs}}}, "
            f"// {index} {member.name or 'text'}: {data_type.key}")


def facet_rows():
    return grouped_rows(SCHEMA.facets, facet_row)


def facet_row(_index, _owner, facet):
    if not facet:
        return "{},"
    number = int(facet.value) if facet.name == "minLength" else 0
    return f"{{nullptr, {quoted(facet.name)}, {quoted(facet.value)}, {number}}},"


def grouped_rows(records, row):
    """One row a record, the rows of each owner under a comment with its name."""
    lines = []
    previous = None
    for index, (owner, record) in enumerate(records):
        if owner is not previous:
            lines.append(f"    // {owner.key}\n")
            previous = owner
        lines.append(f"    {row(index, owner, record)}\n")
    return "".join(lines)


def table_sizes():
    sizes = [("NAMESPACE", SCHEMA.namespaces, "records of `namespaces` before its end"),
             ("TYPE", SCHEMA.types, "records of `types` before its end"),
             ("MEMBER", SCHEMA.members, "records of `members` before its end"),
             ("FACET", SCHEMA.facets, "records of `facets`, the ends of the lists included")]
    constants = "".join(f"inline constexpr std::uint32_t {table}_COUNT = {len(records)}; ///< {meaning}\n"
                        for table, records, meaning in sizes)
    return header(SOURCES / "table_sizes.h", "The sizes of the tables.", ["#include <cstdint>"],
                  f"namespace ttaf1_dfxp {{\n\n{constants}\n}} // namespace ttaf1_dfxp\n")


# Wrapper classes.


def qualified_class(type_):
    return f"{type_.prefix}::{type_.class_name}"


def class_from(type_, prefix):
    """The class name as code in the namespace of `prefix` writes it."""
    return type_.class_name if type_.prefix == prefix else qualified_class(type_)


def accessors(type_):
    """Each member of `type_` but the text, as (accessor name, member index, member).

    An accessor is called as its member's local name, with a 2 where an earlier one already is.
    """
    taken = set()
    for index, member in enumerate(type_.members, type_.first_member):
        if not member.is_text:
            name = member.local_name + ("2" if member.local_name in taken else "")
            assert name not in taken, f"three members of {type_.key} are called {member.local_name}"
            taken.add(name)
            yield name, index, member


def accessor_type(type_, index, member):
    data_type = SCHEMA.type(member.data_type)
    if member.is_element:
        return f"MemberElement<{class_from(data_type, type_.prefix)}, {index}>"
    value = SCHEMA.inherited(data_type, "value", "std::string")
    count = data_type.enumeration_count
    return f"MemberAttribute<{value}, {index}, 0, {count}>" if count else f"MemberAttribute<{value}, {index}>"


def occurrence(member):
    if member.is_element:
        return ", at most one" if member.max_occurs == 1 else ", any number"
    return ", required" if member.min_occurs else ""


def accessor_lines(type_):
    rows = [(f"    {accessor_type(type_, index, member)} {name}{{*this}};",
             f" ///< {member.name}{occurrence(member)}") for name, index, member in accessors(type_)]
    width = max((len(code) for code, _ in rows), default=0)
    return ["\n", *(f"{code:{width}}{comment}\n" for code, comment in rows)] if rows else []


def class_base(type_):
    """The wrapper that a wrapper class derives from: another one only where both hold one value of text."""
    base = SCHEMA.base(type_)
    return base if base and base.is_complex and not base.name else None


def text_lines(type_):
    if not type_.text:
        return []
    base = class_base(type_)
    if base:
        return ["\n", f"    using {class_from(base, type_.prefix)}::operator=;\n"]
    return ["\n",
            "    /// The text inside the element.\n",
            f"    operator std::string() const {{ return GetText(members[{type_.first_member}]); }}\n",
            "    /// Replaces everything inside the element by a text.\n",
            f"    {type_.class_name}& operator=(const std::string& text) {{\n",
            f"        SetText(members[{type_.first_member}], text);\n",
            "        return *this;\n",
            "    }\n"]


def complex_class(type_):
    name = type_.class_name if type_.name != DOCUMENT_TYPE else DOCUMENT_BASE
    base = class_base(type_)
    base_name = class_from(base, type_.prefix) if base else "TypeBase"
    return "".join([
        class_comment(type_),
        f"class {name} : public {base_name} {{\n",
        "public:\n",
        "    /// Views a node, which may be null.\n",
        f"    explicit {name}(xercesc::DOMNode* wrapped) : {base_name}(wrapped) {{}}\n",
        "    /// Views the same node.\n",
        f"    {name}(const {name}& other) : {base_name}(other) {{}}\n",
        "    /// Views the other's node from now on.\n",
        f"    {name}& operator=(const {name}& other) {{\n",
        f"        {base_name}::operator=(other);\n",
        "        return *this;\n",
        "    }\n",
        *text_lines(type_),
        "\n",
        f"    /// Sets xsi:type to {SCHEMA.named(type_).key}.\n",
        f"    void SetXsiType() {{ WriteXsiType(types[{SCHEMA.named(type_).index}]); }}\n",
        *accessor_lines(type_),
        "};\n",
    ])


def class_comment(type_):
    if type_.name == DOCUMENT_TYPE:
        return "/// What the schema says of the document: each element that may be its root.\n"
    elements = sorted({member.name for _, member in SCHEMA.members
                       if member.is_element and member.data_type == type_.key})
    if elements:
        return f"/// The element {', '.join(elements)}.\n"
    if type_.name:
        return f"/// The type {type_.key}.\n"
    return f"/// An element whose content is one {SCHEMA.named(type_).key}.\n"


def simple_class(type_):
    return f"struct {type_.class_name} : TypeBase {{ using TypeBase::TypeBase; }};\n"


def wrapper_class(type_):
    return "\n" + complex_class(type_) if type_.is_complex else simple_class(type_)


def by_namespace(types, write):
    """What `write` makes of each type, inside the C++ namespaces of the types."""
    blocks = []
    for namespace in SCHEMA.namespaces:
        mine = [type_ for type_ in types if type_.prefix == namespace.prefix]
        if mine:
            name = f"namespace ttaf1_dfxp::{namespace.prefix}"
            body = "".join(map(write, mine)).strip("\n")
            blocks.append(f"{name} {{\n\n{body}\n\n}} // {name}\n")
    return "\n".join(blocks)


def header(path, title, includes, body):
    guard = "XTTML_" + str(path.with_suffix("")).upper().replace("/", "_") + "_H"
    sections = [f"{HEAD}//\n// {title}\n// clang-format off\n#ifndef {guard}\n#define {guard}\n",
                *(["".join(f"{line}\n" for line in includes)] if includes else []), body, "#endif\n"]
    return "\n".join(sections)


def class_names():
    def declaration(type_):
        return f"{'class' if type_.is_complex else 'struct'} {type_.class_name};\n"

    return header(SOURCES / "class_names.h", "The names of all wrapper classes.", [],
                  by_namespace(SCHEMA.types, declaration))


def module_header(module):
    types = [type_ for type_ in SCHEMA.types if type_.module == module]
    complex_types = [type_ for type_ in types if type_.is_complex]
    simple_types = [type_ for type_ in types if not type_.is_complex]
    title = MODULE_TITLES[module]
    if simple_types:
        title += "\n// The class of a simple type holds a node and nothing else."
    body = by_namespace([*simple_types, *complex_types], wrapper_class)
    return header(SOURCES / f"{module}.h", title, module_includes(module, complex_types), body)


def module_includes(module, complex_types):
    if not complex_types:
        return ['#include "binding/type_base.h"']
    bases = {class_base(type_).module for type_ in complex_types if class_base(type_)}
    return ['#include "binding/generated/class_names.h"',
            *(f'#include "binding/generated/{base}.h"' for base in sorted(bases - {module})),
            '#include "binding/member_accessors.h"',
            '#include "binding/tables.h"',
            '#include "binding/type_base.h"',
            "", "#include <string>"]


def generated_files():
    """The content of every generated file by its path below the repository."""
    rows = {"namespace_rows.inc": namespace_rows, "type_rows.inc": type_rows,
            "member_rows.inc": member_rows, "facet_rows.inc": facet_rows}
    files = {SOURCES / name: HEAD + write() for name, write in rows.items()}
    files[SOURCES / "table_sizes.h"] = table_sizes()
    files[SOURCES / "class_names.h"] = class_names()
    assert {type_.module for type_ in SCHEMA.types} == set(MODULE_TITLES), "a type without a header"
    files.update({SOURCES / f"{module}.h": module_header(module) for module in MODULE_TITLES})
    return files


def main():
    repository = pathlib.Path(__file__).resolve().parent.parent
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("root", nargs="?", type=pathlib.Path, default=repository,
                        help="folder to write below; the repository unless given")
    root = parser.parse_args().root
    for path, content in generated_files().items():
        target = root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(content, encoding="utf-8")


if __name__ == "__main__":
    main()
