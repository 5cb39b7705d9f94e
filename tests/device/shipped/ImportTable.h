#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// All that stands in the device's libraries' place: code of this program's, and of GNU's runtime, the C
/// library and libarchive what is the same there.
class ImportTable {
public:
    /// What the symbol is bound to; 0, and noted, when nothing is known of it.
    [[nodiscard]] static std::uint64_t address(const char* symbol);

    /// The symbols that were asked for in vain.
    [[nodiscard]] static const std::vector<std::string>& unknown();

    /// More code of the program's, for bundles that import the tests' functions too.
    static void add(const char* symbol, const void* address);
};
