#pragma once

#include <stddef.h>
#include <stdint.h>

/// SHA-256 of bytes in memory.
class Sha256 {
public:
    static constexpr size_t size = 32;

    Sha256(const uint8_t* bytes, size_t count);

    [[nodiscard]] bool equals(const uint8_t* hash) const;

private:
    void add(const uint8_t* block);

    uint32_t state_[8] = {};
};
