"""Which headers of the system a source needs by the names that it uses, whatever a compiler has read before it.

Precompiled headers, and several sources read as one text, hide that a source does not include what it uses. Here the
names are compared with the files that the source comes to include by itself.
"""

import re

# Names of the standard library, without "std::", by the header that declares them. What every header declares, such as
# std::size_t and std::move, is left out.
STANDARD = {
    "algorithm": "all_of any_of clamp copy count count_if equal fill find find_if none_of remove_if replace reverse "
                 "shuffle sort stable_sort transform unique",
    "array": "array to_array",
    "atomic": "atomic atomic_bool atomic_int",
    "charconv": "from_chars to_chars",
    "chrono": "chrono chrono_literals",
    "cmath": "abs ceil cos exp floor fmod hypot isfinite isnan lround pow round sin sqrt tan trunc",
    "condition_variable": "condition_variable",
    "cstdint": "int16_t int32_t int64_t int8_t uint16_t uint32_t uint64_t uint8_t uintptr_t",
    "cstring": "memcmp memcpy memset strcmp strlen strrchr",
    "deque": "deque",
    "exception": "current_exception exception_ptr rethrow_exception terminate",
    "expected": "expected unexpected",
    "filesystem": "filesystem",
    "fstream": "fstream ifstream ofstream",
    "functional": "function bind_front hash invoke less plus reference_wrapper",
    "initializer_list": "initializer_list",
    "iostream": "cerr cin cout",
    "iterator": "back_inserter distance istreambuf_iterator next prev",
    "limits": "numeric_limits",
    "list": "list",
    "map": "map multimap",
    "memory": "make_shared make_unique shared_ptr unique_ptr weak_ptr",
    "mutex": "call_once lock_guard mutex once_flag scoped_lock unique_lock",
    "numbers": "numbers",
    "numeric": "accumulate gcd iota",
    "optional": "nullopt optional",
    "random": "bernoulli_distribution discrete_distribution mt19937 mt19937_64 random_device uniform_int_distribution "
              "uniform_real_distribution",
    "regex": "regex regex_match regex_replace regex_search smatch",
    "set": "multiset set",
    "span": "as_bytes span",
    "sstream": "istringstream ostringstream stringstream",
    "stdexcept": "invalid_argument logic_error out_of_range runtime_error",
    "string": "string stod stoi stol string_literals to_string u16string",
    "string_view": "string_view string_view_literals u16string_view",
    "system_error": "error_code generic_category system_category system_error",
    "thread": "jthread thread this_thread",
    "tuple": "tie tuple",
    "type_traits": "conditional_t decay_t is_base_of_v is_convertible_v is_pointer_v is_same_v remove_cvref_t",
    "unordered_map": "unordered_map",
    "unordered_set": "unordered_set",
    "variant": "get_if holds_alternative monostate variant visit",
    "vector": "vector",
}
HEADER_OF = {name: header for header, names in STANDARD.items() for name in names.split()}

STANDARD_NAME = re.compile(r"\bstd::(?:ranges::)?(\w+)")
QT_NAME = re.compile(r"\bQ[A-Z][a-z]\w*")
TEST_NAME = re.compile(r"\b(?:TEST|TEST_F|TEST_P|EXPECT_EQ|EXPECT_TRUE|ASSERT_TRUE)\(")
MATCHER_NAME = re.compile(r"\b(?:EXPECT_CALL|EXPECT_THAT|ASSERT_THAT|MOCK_METHOD)\(")
ONLY_DECLARED = re.compile(r"^class (Q[A-Z][a-z]\w*);", re.MULTILINE)
NOT_CODE = re.compile(r"""//[^\n]*|/\*.*?\*/|"(?:[^"\\\n]|\\.)*"|^[ \t]*#[^\n]*""", re.DOTALL | re.MULTILINE)


def used(text):
    """The headers, by name, that a file's own words ask for; those of Qt in small letters, as its files are named."""
    code = NOT_CODE.sub("", text)
    headers = {HEADER_OF[name] for name in STANDARD_NAME.findall(code) if name in HEADER_OF}
    headers |= {f"{name.lower()}.h" for name in QT_NAME.findall(code)}
    if TEST_NAME.search(code):
        headers.add("gtest.h")
    if MATCHER_NAME.search(code):
        headers.add("gmock.h")
    return headers


def declared(text):
    """The headers that a file does without, since it declares what it uses of them itself."""
    return {f"{name.lower()}.h" for name in ONLY_DECLARED.findall(text)}


def missing(asked, files, known):
    """Which of the headers that are asked for, by name, is none of the files that a source comes to include.

    What looks like a name of Qt is one when there is such a header among all that are KNOWN.
    """
    return sorted(name for name in asked - names(files) if not name.startswith("q") or name in known)


def names(files):
    return {file.rpartition("/")[2] for file in files}
