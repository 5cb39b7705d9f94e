#pragma once

#include <stddef.h>
#include <stdint.h>

/// What stands in for every library that a bundle under test imports from.
class Imports {
public:
    /// The address that a symbol is bound to. A function that there is no code for fails when it is called;
    /// variables are zeros.
    [[nodiscard]] static uint64_t address(const char* symbol);
};

// The compiler itself calls these.
extern "C" {
void* memcpy(void* to, const void* from, size_t size);
void* memmove(void* to, const void* from, size_t size);
void* memset(void* to, int byte, size_t size);
}
