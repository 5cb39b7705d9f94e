#pragma once

#include <stdint.h>

/// What the processor signs pointers with, in the order in which files number the keys.
enum class SigningKey : unsigned { IA, IB, DA, DB };

/// Signatures of pointers, made by the processor. Null stays null.
class PointerSignature {
public:
    [[nodiscard]] static uint64_t add(uint64_t pointer, SigningKey key, uint64_t modifier);

    /// Whether the pointer is signed like this.
    [[nodiscard]] static bool isRight(uint64_t pointer, SigningKey key, uint64_t modifier);

    [[nodiscard]] static uint64_t strip(uint64_t pointer);

    /// The modifier for a pointer that is signed for the one place where it stands.
    [[nodiscard]] static uint64_t modifier(uint64_t place, uint16_t diversity);
};
