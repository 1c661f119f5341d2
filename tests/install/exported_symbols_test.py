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
SCOPE = re.compile(
    r"""(?P<open>\bnamespace\s+(?P<namespace>[\w:]+)\s*\{)
      | (?P<marked>\bXTTML_API\b)
      | (?P<other>\{) | (?P<close>\})""",
    re.VERBOSE,
)
MARKED_MACRO = re.compile(r"^#define .*\bXTTML_API\b.*?(\w+)##", re.MULTILINE)
MARKED_CLASS = re.compile(r"\b(?:class|struct)\s+$")
FREE_FUNCTION = re.compile(
    r"^(?!.*\b(?:inline|constexpr|XTTML_API|using)\b)[\w:][\w:<>*&, ]*[\w*&>] +[*&]*\w+\([^;{]*\);", re.MULTILINE
)


class Declarations:
    """What is marked: qualified names of classes, functions and variables."""

    def __init__(self):
        self.classes, self.polymorphic, self.others = set(), set(), set()
        self.interfaces = set()  # nothing but pure virtual functions: whoever derives from it has its vtable
        self.prefixes = set()  # of names that a macro completes
        self.unmarked_functions = set()

    def read(self, text):
        self.prefixes.update(MARKED_MACRO.findall(text))
        text = COMMENT.sub("", text)
        scopes = []
        for found in SCOPE.finditer(text):
            if found["open"]:
                scopes.append(found["namespace"])
            elif found["other"]:
                scopes.append(None)
            elif found["close"]:
                if scopes:
                    scopes.pop()
            else:
                self.read_marked(text, found, [scope for scope in scopes if scope])
        self.unmarked_functions.update(FREE_FUNCTION.findall(text))

    def read_marked(self, text, found, namespaces):
        rest = text[found.end():]
        if MARKED_CLASS.search(text[:found.start()]):
            name = "::".join([*namespaces, re.match(r"\s*(\w+)", rest)[1]])
            self.classes.add(name)
            virtual = re.findall(r"\b(?:virtual|override)\b[^;{]*", rest[:rest.index("\n};")])
            if virtual:
                self.polymorphic.add(name)
            if all(function.endswith("= 0") for function in virtual):
                self.interfaces.add(name)
        else:
            self.others.add("::".join([*namespaces, re.match(r"[^;(\[]*?(\w+)\s*[;(\[]", rest)[1]]))


def read_symbols():
    """The demangled names of the defined dynamic symbols, without the version node's own."""
    listed = run(NM, "-D", "--defined-only", LIBRARY)
    mangled = re.findall(r"^[0-9a-f]+ [^A] ([^@\n]+)", listed, re.MULTILINE)
    return sorted(set(run(FILTER, input="\n".join(mangled)).splitlines()))


def name_without_arguments(symbol):
    """`ns::f[abi:cxx11](int) const` gives `ns::f`."""
    return re.sub(r"\[abi:\w+\]", "", symbol.split("(")[0])


class ExportedSymbols(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.declared = Declarations()
        for header in HEADERS:
            cls.declared.read(pathlib.Path(header).read_text())
        cls.symbols = read_symbols()

    def owner_of(self, symbol):
        """The declaration that a symbol belongs to; None when there is none."""
        typed = re.match(r"(?:vtable|typeinfo|typeinfo name) for (.*)", symbol)
        if typed:
            return typed[1] if typed[1] in self.declared.polymorphic else None
        name = name_without_arguments(symbol)
        if name in self.declared.others:
            return name
        scopes = [c for c in self.declared.classes if name.startswith(c + "::")]
        return next(iter(scopes + [p for p in self.declared.prefixes if name.split("::")[-1].startswith(p)]), None)

    def test_the_headers_declare_the_interface(self):
        functions = [name for name in self.declared.others if name.startswith("x_ttml_")]
        readers = {"fgGetLength", "fgGetDoubleLength", "fgConvertStrToInt", "fStr2Float", "strFormatColor", "rMapColor"}
        self.assertEqual(len(functions), 17 + 35)
        self.assertLessEqual(readers, self.declared.others)
        self.assertLessEqual({"DisplayItem", "tessera::Exception", "ttaf1_dfxp::tt::Cttaf1_dfxp"}, self.declared.classes)

    def test_nothing_is_exported_undeclared(self):
        self.assertEqual([symbol for symbol in self.symbols if self.owner_of(symbol) is None], [])

    def test_everything_declared_is_exported(self):
        owners = {self.owner_of(symbol) for symbol in self.symbols}
        self.assertEqual((self.declared.classes | self.declared.others | self.declared.prefixes) - owners, set())

    def test_type_information_of_every_class_with_virtual_functions(self):
        wanted = {f"{kind} for {name}" for kind in ("typeinfo", "typeinfo name") for name in self.declared.polymorphic}
        wanted |= {f"vtable for {name}" for name in self.declared.polymorphic - self.declared.interfaces}
        self.assertEqual(wanted - set(self.symbols), set())

    def test_no_installed_header_declares_a_hidden_function(self):
        self.assertEqual(self.declared.unmarked_functions, set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
