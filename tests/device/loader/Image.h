#pragma once

#include <stddef.h>
#include <stdint.h>

/// An arm64e bundle in memory, as the device's loader would have it there: its segments, its pointers filled
/// in and signed by the processor. Reads the file by an understanding of the format that is not the tools'.
class Image {
public:
    /// No key's number: all pointers are signed as the bundle asks for.
    static constexpr unsigned noKey = 4;

    /// \param disturbedKey pointers for this key are signed with another diversity than the bundle asks for
    Image(const char* path, unsigned disturbedKey);

    /// Runs what runs at load.
    void runInitialisers() const;

    /// An exported function; fails when there is none.
    [[nodiscard]] int (*function(const char* symbol) const)();

private:
    void readCommands();
    void readSegment(const uint8_t* command);
    void bindImports();
    void fillSegment(const uint8_t* starts, unsigned disturbedKey);
    void fillChain(uint8_t* place, unsigned disturbedKey);
    [[nodiscard]] uint64_t filled(uint64_t content, uint64_t place, unsigned disturbedKey) const;

    const uint8_t* file_;
    uint8_t* memory_;
    const uint8_t* fixups_ = nullptr;
    const uint8_t* symbolTable_ = nullptr;
    uint64_t initialisers_ = 0;
    uint64_t initialiserCount_ = 0;
    uint64_t imports_[256] = {};
};
