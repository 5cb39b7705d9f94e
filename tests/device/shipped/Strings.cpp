// The parts of the C++ library's strings that the bundle imports: made from the headers that the bundle is
// compiled with, whose strings are laid out as the device's are when they are told so. The rest of this
// program has another library. NOLINTNEXTLINE(*-reserved-identifier): the library's own switch
#define _LIBCPP_ABI_ALTERNATE_STRING_LAYOUT

#include "Failure.h"
#include "ImportLists.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string>

_LIBCPP_BEGIN_NAMESPACE_STD

// What the headers leave to the library.
// NOLINTNEXTLINE(*-reserved-identifier,*-variadic-functions,*-dcl50-cpp): as the headers declare it
[[noreturn]] void __libcpp_verbose_abort(const char* format, ...) noexcept {
    fail("the C++ library gives up: ", format);
}

_LIBCPP_END_NAMESPACE_STD

// The headers leave these to the library too.
template class std::basic_string<char>;

namespace {

std::string& append(std::string& text, const char* added, std::size_t size) {
    return text.append(added, size);
}

std::string& insert(std::string& text, std::size_t place, const char* added, std::size_t size) {
    return text.insert(place, added, size);
}

void pushBack(std::string& text, char added) {
    text.push_back(added);
}

std::string& assign(std::string& to, const std::string& from) {
    return to = from;
}

/// A constructor, which answers what it has made.
std::string* makePart(void* memory, const std::string& whole, std::size_t place, std::size_t size) {
    return new (memory) std::string(whole, place, size);
}

std::string joined(const char* left, const std::string& right) {
    std::string text(left);
    text.append(right.data(), right.size());
    return text;
}

template <class Number>
std::string printed(Number number) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.begin(), text.end(), number).ptr};
}

} // namespace

Imports stringImports() {
    static const std::array imports{
        Import{"__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEE6appendEPKcm", code(append)},
        Import{"__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEE6insertEmPKcm", code(insert)},
        Import{"__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEE9push_backEc",
               code(pushBack)},
        Import{"__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEEaSERKS5_", code(assign)},
        Import{"__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEEC2ERKS5_mmRKS4_",
               code(makePart)},
        Import{"__ZNSt3__19to_stringEi", code(printed<int>)},
        Import{"__ZNSt3__19to_stringEm", code(printed<unsigned long>)},
        Import{"__ZNSt3__19to_stringEx", code(printed<long long>)},
        Import{"__ZNSt3__19to_stringEy", code(printed<unsigned long long>)},
        Import{"__ZNSt3__1plIcNS_11char_traitsIcEENS_9allocatorIcEEEENS_12basic_stringIT_T0_T1_EEPKS6_RKS9_",
               code(joined)}};
    return imports;
}
