#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How a pointer in memory is signed: with which key, and what goes into the signature besides the pointer.
struct PointerSchema {
    /// The processor's keys, under the numbers that object and image files have for them.
    enum class Key : std::uint8_t { InstructionA, InstructionB, DataA, DataB };

    Key key = Key::InstructionA;
    bool addressDiversified = false; ///< the address of the pointer's place goes in as well
    std::uint16_t diversity = 0;

    /// As the last bytes of a signed pointer in a file have it: the diversity in bits 32 to 47, then one bit
    /// for the address, two for the key. Object files and chained fixups agree in this.
    [[nodiscard]] static PointerSchema decoded(std::uint64_t bits);
    [[nodiscard]] std::uint64_t encoded() const;

    /// For people: "DA, address, 0x6ae1".
    [[nodiscard]] std::string description() const;

    /// The name of a symbol that carries the schema through a link; `number` tells those of an object apart.
    [[nodiscard]] std::string markerName(std::size_t number) const;
    /// Nothing for the name of any other symbol.
    [[nodiscard]] static std::optional<PointerSchema> ofMarker(std::string_view symbolName);

    bool operator==(const PointerSchema&) const = default;
};
