"""Several sources as one text, for a tool that spends most of its time on what every source includes.

The text means what its sources mean, but for names: what a source keeps to itself in its unnamed namespace is renamed,
since another source, or a header that another includes, may use the same word. That is done by words, not by meaning,
so a text may fail to compile, or be found at fault, where each of its sources is right. It is a shortcut to "all of
them are clean" only.
"""

import re

# What words are looked for in: code, without comments, texts, characters and the names of included files and members.
NOT_CODE = r"""//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:[^"\\\n]|\\.)*"|(?<![0-9A-Za-z_])'(?:[^'\\\n]|\\.)*'|^[ \t]*#[ \t]*include[^\n]*|\boffsetof\([^)]*\)"""
WORD = r"(?<![\w.:])(?<!->)(?:[A-Za-z_]\w*)"
TOKEN = re.compile(f"(?P<other>{NOT_CODE})|(?P<word>{WORD})", re.DOTALL | re.MULTILINE)

INCLUDE = re.compile(r"^[ \t]*#[ \t]*include[ \t]*([<\"][^>\"]*[>\"]).*$", re.MULTILINE)
UNNAMED_NAMESPACE = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.DOTALL | re.MULTILINE)
ALIGNMENT = r"(?:alignas\([^()]*\) )?"
TYPE = re.compile(
    rf"^(?:template .*> )?(?:class|struct|union|enum class|enum|concept) {ALIGNMENT}(\w+)|^using (\w+) ="
)
OTHER_NAME = re.compile(r"([A-Za-z_]\w*)\s*[({=;\[]")
NO_NAMES = {"alignas", "bool", "char", "decltype", "double", "float", "int", "noexcept", "operator", "requires",
            "void"}
ATTRIBUTE = re.compile(r"\[\[.*?\]\] *")
TEMPLATE_ARGUMENTS = re.compile(r"<[^<>]*>")
CLASS = re.compile(
    rf"^( *)(?:class|struct|union) {ALIGNMENT}(\w+)[^;\n]*\{{$(.*?)^\1\}}", re.DOTALL | re.MULTILINE
)
MEMBER_DEFINED_OUTSIDE = re.compile(r"^\w[^\n(]*::([A-Za-z_]\w*)\(", re.MULTILINE)
# What is found by its name.
FOUND_BY_NAME = {"PrintTo"}
NAMELESS = re.compile(r"^(?:(?:INSTANTIATE_|TYPED_)?TEST\w*|static_assert)\(|^using (?:namespace|enum)\b|^using [\w:]+;")
# Of which a program has one.
PROGRAM = re.compile(r"^(?:extern \"C\" )?int (?:main|LLVMFuzzerTestOneInput)\(", re.MULTILINE)


def own_names(text):
    """The names that a formatted source declares in its unnamed namespaces, where a line starts."""
    return set().union(*(names_declared(namespace[1], "") for namespace in UNNAMED_NAMESPACE.finditer(text)))


def names_declared(text, indentation):
    """The names that lines with an indentation declare."""
    declaration = rf"^{indentation}(?!public:|protected:|private:)[\w\[].*(?:\n{indentation} +.*)?"
    names = (name_of(ATTRIBUTE.sub("", found.strip())) for found in re.findall(declaration, text, re.MULTILINE))
    return {name for name in names if name}


def members_of(indentation, name, body):
    """What a class declares, but for its constructors, and what the classes within it do."""
    return (names_declared(body, f"{indentation}    ") | members(body)) - {name}


def name_of(declaration):
    if NAMELESS.match(declaration):
        return None
    found = TYPE.match(declaration)
    if found:
        return found[1] or found[2]
    without_arguments = declaration
    while TEMPLATE_ARGUMENTS.search(without_arguments):
        without_arguments = TEMPLATE_ARGUMENTS.sub("", without_arguments)
    return next((name for name in OTHER_NAME.findall(without_arguments) if name not in NO_NAMES), None)


def members(text):
    """The names that a formatted source declares in its classes, or defines for others'."""
    declared = (members_of(*found) for found in CLASS.findall(text))
    return set(MEMBER_DEFINED_OUTSIDE.findall(text)).union(*declared)


def names_that_may_change(text):
    """The names that a formatted source keeps to itself, and that nothing else in it may mean or find."""
    return own_names(text) - members(text) - FOUND_BY_NAME


def with_names(text, names, ending):
    """The source with an ending after each of the names, where they stand alone."""
    def renamed(token):
        word = token["word"]
        return f"{word}{ending}" if word in names else token[0]
    return TOKEN.sub(renamed, text)


def without_includes(text, included):
    """The source without what is included before it; what it includes twice itself stays."""
    own = set()

    def kept(line):
        file = line[1]
        again = file in included and file not in own
        own.add(file)
        return "" if again else line[0]
    rest = INCLUDE.sub(kept, text)
    included |= own
    return rest


def joined(sources):
    """One text for sources, a list of (name, text)."""
    included = set()
    parts = []
    for number, (name, text) in enumerate(sources):
        text = with_names(text, names_that_may_change(text), f"In{number}")
        parts.append(f"// {name}\n{without_includes(text, included)}\n")
    return "".join(parts)


def is_program(text):
    return PROGRAM.search(text) is not None
