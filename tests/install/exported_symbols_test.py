"""The dynamic symbols of the library are what the installed headers mark XTTML_API, nothing more and nothing less.

Arguments: the library, nm, c++filt, the installed headers as the build lists them.
"""

import pathlib
import re
import sys
import unittest

from commands import run

LIBRARY, NM, FILTER, *HEADERS = sys.argv[1:]

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/|^\s*#[^\n]*", re.DOTALL | re.MULTILINE)
MARKED_CLASS = re.compile(r"^(?:class|struct) XTTML_API (\w+)(.*?)^};", re.DOTALL | re.MULTILINE)
MARKED_OTHER = re.compile(r"^(?:extern )?XTTML_API [^;(\[]*?(\w+)\s*[;(\[]", re.MULTILINE)
MARKED_MACRO = re.compile(r"^#define .*\bXTTML_API\b.*?(\w+)##", re.MULTILINE)
VIRTUAL = re.compile(r"\b(?:virtual|override)\b[^;{]*")
FREE_FUNCTION = re.compile(
    r"^(?!.*\b(?:inline|constexpr|XTTML_API|using)\b)[\w:][\w:<>*&, ]*[\w*&>] +[*&]*\w+\([^;{]*\);", re.MULTILINE
)


class Declarations:
    """What is marked: names of classes, functions and variables."""

    def __init__(self):
        self.classes, self.polymorphic, self.others = set(), set(), set()
        self.interfaces = set()  # nothing but pure virtual functions: whoever derives from it has its vtable
        self.prefixes = set()  # of names that a macro completes
        self.unmarked_functions = set()

    def read(self, text):
        self.prefixes.update(MARKED_MACRO.findall(text))
        text = COMMENT.sub("", text)
        self.others.update(MARKED_OTHER.findall(text))
        self.unmarked_functions.update(FREE_FUNCTION.findall(text))
        for name, body in MARKED_CLASS.findall(text):
            virtual = VIRTUAL.findall(body)
            self.classes.add(name)
            if virtual:
                self.polymorphic.add(name)
            if all(function.endswith("= 0") for function in virtual):
                self.interfaces.add(name)


def read_symbols():
    """The demangled names of the defined dynamic symbols, without the version node's own."""
    listed = run(NM, "-D", "--defined-only", LIBRARY)
    mangled = re.findall(r"^[0-9a-f]+ [^A] ([^@\n]+)", listed, re.MULTILINE)
    return sorted(set(run(FILTER, input="\n".join(mangled)).splitlines()))


TYPED = re.compile(r"(vtable|typeinfo|typeinfo name) for (?:.*::)?(\w+)")


class ExportedSymbols(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.declared = Declarations()
        for header in HEADERS:
            cls.declared.read(pathlib.Path(header).read_text())
        cls.symbols = read_symbols()

    def owner_of(self, symbol):
        """The declaration that a symbol belongs to; None when there is none."""
        typed = TYPED.match(symbol)
        if typed:
            return typed[2] if typed[2] in self.declared.polymorphic else None
        *scopes, name = re.sub(r"\[abi:\w+\]", "", symbol.split("(")[0]).split("::")
        if name in self.declared.others:
            return name
        owners = [scope for scope in scopes if scope in self.declared.classes]
        owners += [prefix for prefix in self.declared.prefixes if name.startswith(prefix)]
        return next(iter(owners), None)

    def test_the_headers_declare_the_interface(self):
        functions = [name for name in self.declared.others if name.startswith("x_ttml_")]
        readers = {"fgGetLength", "fgGetDoubleLength", "fgConvertStrToInt", "fStr2Float", "strFormatColor", "rMapColor"}
        self.assertEqual(len(functions), 17 + 35)
        self.assertLessEqual(readers, self.declared.others)
        self.assertLessEqual({"DisplayItem", "Exception", "Cttaf1_dfxp"}, self.declared.classes)

    def test_nothing_is_exported_undeclared(self):
        self.assertEqual([symbol for symbol in self.symbols if self.owner_of(symbol) is None], [])

    def test_everything_declared_is_exported(self):
        owners = {self.owner_of(symbol) for symbol in self.symbols}
        self.assertEqual((self.declared.classes | self.declared.others | self.declared.prefixes) - owners, set())

    def test_type_information_of_every_class_with_virtual_functions(self):
        found = {typed.groups() for typed in map(TYPED.match, self.symbols) if typed}
        wanted = {(kind, name) for kind in ("typeinfo", "typeinfo name") for name in self.declared.polymorphic}
        wanted |= {("vtable", name) for name in self.declared.polymorphic - self.declared.interfaces}
        self.assertEqual(wanted - found, set())

    def test_no_installed_header_declares_a_hidden_function(self):
        self.assertEqual(self.declared.unmarked_functions, set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
