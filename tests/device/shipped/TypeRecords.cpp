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

bool hasBase(const TypeRecord& type) {
    return CodePointers::stripped(type.table) ==
           reinterpret_cast<std::uint64_t>(&typeRecordTables.withBase[2]);
}

} // namespace

const void* castToRecorded(const void* object, const TypeRecord* /*from*/, const TypeRecord* to,
                           std::intptr_t /*hint*/) {
    const auto* const table = reinterpret_cast<const std::uint64_t*>(
        CodePointers::stripped(*static_cast<const std::uint64_t*>(object)));
    const auto offsetToWhole = static_cast<std::int64_t>(table[-2]);
    const auto* type = reinterpret_cast<const TypeRecord*>(table[-1]);
    while (!areSame(*type, *to)) {
        if (!hasBase(*type))
            return nullptr;
        type = type->base;
    }
    return static_cast<const char*>(object) + offsetToWhole;
}
