"""The words in which schema.py describes a schema, and the table indices that follow from their order."""

from dataclasses import dataclass, field


@dataclass(frozen=True)
class Member:
    """Text content (empty name), an attribute or a child element. Names are "prefix:local" or "local"."""

    name: str
    data_type: str
    is_element: bool = False
    min_occurs: int = 0
    max_occurs: int = 1

    @property
    def prefix(self):
        return self.name.rpartition(":")[0]

    @property
    def local_name(self):
        return self.name.rpartition(":")[2]

    @property
    def is_text(self):
        return not self.name


@dataclass(frozen=True)
class Facet:
    name: str
    value: str


@dataclass
class Type:
    """A simple or complex type. `name` is empty for an anonymous type, which then goes by its class name.

    `module` names the header of the wrapper class. A type without a `value` (the C++ type of an attribute's
    value) or `slot` (of the formatter) of its own has the one of its base type.
    """

    name: str
    class_name: str
    base: str  # the key of a type; None for none
    facets: tuple = ()
    members: tuple = ()
    is_complex: bool = False
    module: str = None
    value: str = None
    slot: str = None
    prefix: str = field(default="", init=False)
    index: int = field(default=-1, init=False)
    first_member: int = field(default=-1, init=False)
    facet_index: int = field(default=-1, init=False)

    @property
    def end_member(self):
        return self.first_member + len(self.members)

    @property
    def key(self):
        return f"{self.prefix}:{self.name or self.class_name}"

    @property
    def label(self):
        return self.name or self.class_name

    @property
    def text(self):
        return next((member for member in self.members if member.is_text), None)

    @property
    def enumeration_count(self):
        return sum(facet.name == "enumeration" for facet in self.facets)


@dataclass
class Namespace:
    prefix: str
    uri: str
    module: str = None  # the header of its wrapper classes, unless a type names another
    types: list = field(default_factory=list)
    index: int = field(default=-1, init=False)
    first_type: int = field(default=-1, init=False)

    @property
    def end_type(self):
        return self.first_type + len(self.types)


class Schema:
    """A description with every index filled in."""

    def __init__(self, namespaces):
        self.namespaces = namespaces
        self.types = []
        self.members = []  # (owner, member)
        self.facets = []  # (owner, facet); a facet of None ends a type's list
        for namespace in namespaces:
            namespace.index = namespaces.index(namespace)
            namespace.first_type = len(self.types)
            for type_ in namespace.types:
                self._add_type(namespace, type_)
        self._types_by_key = {type_.key: type_ for type_ in self.types}
        assert len(self._types_by_key) == len(self.types), "two types share a name"
        self._require_names()

    def _add_type(self, namespace, type_):
        type_.prefix = namespace.prefix
        type_.module = type_.module or namespace.module
        type_.index = len(self.types)
        type_.first_member = len(self.members)
        self.types.append(type_)
        self.members += [(type_, member) for member in type_.members]
        if type_.facets:
            type_.facet_index = len(self.facets)
            self.facets += [(type_, facet) for facet in [*type_.facets, None]]

    def _require_names(self):
        """Ends the program with a line about the first name that nothing in the description bears."""
        prefixes = {"", *(namespace.prefix for namespace in self.namespaces)}
        for type_ in self.types:
            if type_.base and type_.base not in self._types_by_key:
                raise SystemExit(f"{type_.key} derives from {type_.base}: there is no such type")
        for owner, member in self.members:
            if member.data_type not in self._types_by_key:
                raise SystemExit(f"{owner.key} has {member.name} of {member.data_type}: there is no such type")
            if member.prefix not in prefixes:
                raise SystemExit(f"{owner.key} has {member.name}: there is no namespace {member.prefix}")

    def type(self, key):
        return self._types_by_key[key]

    def namespace(self, prefix):
        return next(namespace for namespace in self.namespaces if namespace.prefix == prefix)

    def base(self, type_):
        return self.type(type_.base) if type_.base else None

    def inherited(self, type_, attribute, default):
        """The type's own value of `attribute`, or that of its nearest ancestor that has one."""
        while type_:
            if own := getattr(type_, attribute):
                return own
            type_ = self.base(type_)
        return default

    def named(self, type_):
        """The type itself, or the type of the one value that an anonymous complex type holds."""
        return type_ if type_.name else self.type(type_.text.data_type)


def whitespace(value):
    return Facet("whitespace", value)


def pattern(value):
    return Facet("pattern", value)


def min_length(value):
    return Facet("minLength", value)


def min_inclusive(value):
    return Facet("minInclusive", value)


def max_inclusive(value):
    return Facet("maxInclusive", value)


def fraction_digits(value):
    return Facet("fractionDigits", value)


def enumeration(*values):
    return [Facet("enumeration", value) for value in values]


def attribute(name, data_type):
    return Member(name, data_type)


def attributes(prefix, *local_names):
    """Attributes of one namespace, each of the TTML data type that bears its name."""
    return [attribute(f"{prefix}:{name}", f"ttd:{name}") for name in local_names]


def required(member):
    return Member(member.name, member.data_type, member.is_element, 1, member.max_occurs)


def mixed(data_type="xs:anySimpleType"):
    """Text between child elements."""
    return Member("", data_type, max_occurs=-1)


def simple_content(data_type):
    """Text that is one value."""
    return Member("", data_type, min_occurs=1)


def element(name, data_type=None, max_occurs=-1):
    """A child element; its type is named after it unless given."""
    return Member(name, data_type or f"{name}.eltype", is_element=True, max_occurs=max_occurs)


def optional_element(name, data_type=None):
    return element(name, data_type, max_occurs=1)


def optional_elements(prefix, *local_names):
    return [optional_element(f"{prefix}:{name}") for name in local_names]


def simple_type(name, base, *facets, **details):
    return Type(name, f"C{name}", base, _flat(facets), **details)


def anonymous_type(class_name, base, *facets, **details):
    return Type("", class_name, base, _flat(facets), **details)


def complex_type(name, base, *members, **details):
    return Type(name, "C" + name.replace(".", "_"), base, (), _flat(members), is_complex=True, **details)


def element_type(name, *members, **details):
    return complex_type(f"{name}.eltype", "xs:anyType", *members, **details)


def anonymous_complex_type(class_name, base, *members, **details):
    return Type("", class_name, base, (), _flat(members), is_complex=True, **details)


def _flat(items):
    """The items in order, each repeated group replaced by what it holds."""
    flat = []
    for item in items:
        flat += item if isinstance(item, list) else [item]
    return tuple(flat)
