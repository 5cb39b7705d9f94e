#pragma once

#include <array>
#include <cstdint>

/// A class as the C++ compiler records it: one without a base, or with one that begins where it begins.
struct TypeRecord {
    std::uint64_t table; ///< which of the two it is
    std::uint64_t name;
    const TypeRecord* base; ///< of one with a base alone
};

/// What the tables of records begin with: the address that records are bound to lies two places further.
struct TypeRecordTables {
    std::array<std::uint64_t, 4> withoutBase;
    std::array<std::uint64_t, 4> withBase;
};

extern const TypeRecordTables typeRecordTables;

/// `dynamic_cast` to a class, for objects whose classes are recorded so.
extern "C" const void* castToRecorded(const void* object, const TypeRecord* from, const TypeRecord* to,
                                      std::intptr_t hint);
