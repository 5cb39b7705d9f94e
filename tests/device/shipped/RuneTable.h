#pragma once

#include <array>
#include <cstdint>

/// What the device's headers look characters up in, laid out as they read it.
struct RuneTable {
    static constexpr unsigned cached = 256;

    std::array<char, 8> magic;
    std::array<char, 32> encoding;
    std::array<void*, 2> functions;
    std::int32_t invalid;
    std::array<std::uint32_t, cached> kinds;
    std::array<std::int32_t, cached> lower;
    std::array<std::int32_t, cached> upper;
    std::array<void*, 16> rest;
};

/// The table for the locale "C".
[[nodiscard]] const RuneTable& runeTable();

/// The kinds of those beyond the table, of which that locale knows none.
extern "C" int kindsOfRune(std::int32_t rune, unsigned long asked);
