#pragma once

#include <stddef.h>
#include <stdint.h>

/// The few calls of the Linux kernel on AArch64 that a program without a C library needs.
class Kernel {
public:
    /// Ends the process.
    [[noreturn]] static void exit(int status);

    /// Writes a text to the standard error.
    static void write(const char* text);

    /// A file's bytes in memory; null when there is no such file.
    [[nodiscard]] static const uint8_t* mapFile(const char* path, size_t size);

    /// Memory that may be read and written; null when there is none.
    [[nodiscard]] static uint8_t* allocate(size_t size);

    /// Says what may be done with memory: read 1, write 2, run 4. \returns whether that is so now
    [[nodiscard]] static bool protect(uint8_t* memory, size_t size, uint32_t protection);
};
