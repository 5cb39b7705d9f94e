#include "TypeRecords.h"

#include "CodePointers.h"

#include <cstring>

const TypeRecordTables typeRecordTables{};

namespace {

const char* nameOf(const TypeRecord& type) {
    constexpr std::uint64_t mayHaveCopies = 1ULL << 63U;
    return reinterpret_cast<const char*>(type.name & ~mayHaveCopies);
}

bool areSame(const TypeRecord& one, const TypeRecord& other) {
    return &one == &other || std::strcmp(nameOf(one), nameOf(other)) == 0;
}

/// The record that a class with a base has of that; null for one without. The device's library calls virtual
/// functions of every record that it comes to, and so authenticates the record's table.
const TypeRecord* baseOf(const TypeRecord& type) {
    const auto table =
        CodePointers::authenticated(type.table, SigningKey::DA, 0, "the table of a class's record");
    return table == reinterpret_cast<std::uint64_t>(&typeRecordTables.withBase[2]) ? type.base : nullptr;
}

} // namespace

const void* castToRecorded(const void* object, const TypeRecord* /*from*/, const TypeRecord* to,
                           std::intptr_t /*hint*/) {
    const auto* const table = reinterpret_cast<const std::uint64_t*>(
        CodePointers::stripped(*static_cast<const std::uint64_t*>(object)));
    const auto offsetToWhole = static_cast<std::int64_t>(table[-2]);
    const auto* type = reinterpret_cast<const TypeRecord*>(table[-1]);
    bool isFound = false;
    for (; type != nullptr; type = baseOf(*type))
        isFound = isFound || areSame(*type, *to);
    return isFound ? static_cast<const char*>(object) + offsetToWhole : nullptr;
}
