"""Several sources as one text, for a tool that spends most of its time on what every source includes.

The text means what its sources mean, but for names: what a source keeps to itself in its unnamed namespace is renamed
where another source of the text uses the same word. That is done by words, not by meaning, so a text may fail to
compile, or be found at fault, where each of its sources is right. It is a shortcut to "all of them are clean" only.
"""

import re

# What words are looked for in: code, without comments, texts, characters and the names of included files.
NOT_CODE = r"""//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:[^"\\\n]|\\.)*"|(?<![0-9A-Za-z_])'(?:[^'\\\n]|\\.)*'|^[ \t]*#[ \t]*include[^\n]*"""
WORD = r"(?<![\w.:])(?<!->)(?:[A-Za-z_]\w*)"
TOKEN = re.compile(f"(?P<other>{NOT_CODE})|(?P<word>{WORD})", re.DOTALL | re.MULTILINE)
ANY_WORD = re.compile(r"[A-Za-z_]\w*")

INCLUDE = re.compile(r"^[ \t]*#[ \t]*include[ \t]*([<\"][^>\"]*[>\"]).*$", re.MULTILINE)
UNNAMED_NAMESPACE = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.DOTALL | re.MULTILINE)
TYPE = re.compile(r"^(?:template .*> )?(?:class|struct|union|enum class|enum|concept) (\w+)|^using (\w+) =")
OTHER_NAME = re.compile(r"([A-Za-z_]\w*)\s*[({=;\[]")
NO_NAMES = {"alignas", "bool", "char", "decltype", "double", "float", "int", "noexcept", "operator", "requires",
            "void"}
TEMPLATE_ARGUMENTS = re.compile(r"<[^<>]*>")
MEMBER = re.compile(r"(?:\.|->|\b(?!std)\w+::)([A-Za-z_]\w*)")
# What is found by its name.
FOUND_BY_NAME = {"PrintTo"}
NAMELESS = re.compile(r"^(?:(?:INSTANTIATE_|TYPED_)?TEST\w*|static_assert)\(|^using (?:namespace|enum)\b|^using [\w:]+;")
# Of which a program has one.
PROGRAM = re.compile(r"^(?:extern \"C\" )?int (?:main|LLVMFuzzerTestOneInput)\(", re.MULTILINE)


def own_names(text):
    """The names that a formatted source declares in its unnamed namespaces, where a line starts."""
    names = set()
    for namespace in UNNAMED_NAMESPACE.finditer(text):
        for declaration in re.findall(r"^(?!public:|protected:|private:)\w.*(?:\n +.*)?", namespace[1], re.MULTILINE):
            name = name_of(declaration)
            if name:
                names.add(name)
    return names


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


def may_be_members(text):
    """The words that stand after another name in a source, and so may be declared there for more than one thing."""
    return set(MEMBER.findall(text))


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
    words = [set(ANY_WORD.findall(text)) for _, text in sources]
    included = set()
    parts = []
    for number, (name, text) in enumerate(sources):
        elsewhere = set().union(*words[:number], *words[number + 1:])
        text = with_names(text, (own_names(text) - may_be_members(text) - FOUND_BY_NAME) & elsewhere, f"In{number}")
        parts.append(f"// {name}\n{without_includes(text, included)}\n")
    return "".join(parts)


def is_program(text):
    return PROGRAM.search(text) is not None
