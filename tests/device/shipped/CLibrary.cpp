// What the bundle imports of the C library, and differs from the one here.

#include "CodePointers.h"
#include "Failure.h"
#include "ImportLists.h"
#include "RuneTable.h"
#include "VariadicCalls.h"

#include <array>
#include <clocale>
#include <cstdint>
#include <locale> // for locales as objects

// NOLINTNEXTLINE(*-reserved-identifier): the C++ library's, which has no header for it
extern "C" int __cxa_atexit(void (*function)(void* argument), void* argument, void* library);

namespace {

const std::uint64_t stackGuard = 0x5A5A5A00A5A5A5A5;

[[noreturn]] void stackIsSpoilt() {
    fail("the bundle's code has spoilt its stack");
}

int runAtExit(void (*function)(void* argument), void* argument, void* /*library*/) {
    return __cxa_atexit(CodePointers::authenticated(function, "what runs at exit"), argument, nullptr);
}

locale_t makeLocale(int categories, const char* name, locale_t base) {
    constexpr int kindsOfCharacters = 2; // numbered otherwise there
    if (categories != kindsOfCharacters || base != nullptr)
        fail("no such locale is known: ", name);
    return newlocale(LC_CTYPE_MASK, name, nullptr);
}

} // namespace

Imports cLibraryImports() {
    static const std::array imports{
        Import{"___cxa_atexit", code(runAtExit)},         Import{"___maskrune", code(kindsOfRune)},
        Import{"___stack_chk_fail", code(stackIsSpoilt)}, Import{"___stack_chk_guard", &stackGuard},
        Import{"__DefaultRuneLocale", &runeTable()},      Import{"_newlocale", code(makeLocale)},
        Import{"_snprintf", code(printFromBundle)}};
    return imports;
}
