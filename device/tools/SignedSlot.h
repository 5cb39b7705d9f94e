#pragma once

#include "MachOFile.h"
#include "PointerSchema.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// A place in an arm64e object where the compiler asks for a signed pointer, by a relocation of its own type.
struct SignedSlot {
    std::size_t number = 0;  ///< in the object
    std::size_t section = 0; ///< index
    std::uint64_t address = 0;
    std::uint64_t fileOffset = 0;
    std::uint64_t relocation = 0; ///< where in the file it is asked for
    PointerSchema schema;
    std::uint32_t symbol = 0;   ///< index of what is pointed to
    std::int32_t addend = 0;    ///< and how far behind that
    bool isInitialiser = false; ///< one of the functions that run at load, which the linker keeps as offsets

    /// All of them. Refuses one of a shape that the compiler does not make.
    [[nodiscard]] static std::vector<SignedSlot> readAll(const MachOFile& object);
};
