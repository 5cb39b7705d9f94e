#pragma once

#include <stddef.h>
#include <stdint.h>

enum class Architecture { Arm64, Arm64e };

/// One architecture's part of a universal file, or of a file for that architecture alone: the commands, and
/// what they tell. Reads the file by an understanding of the format that is not the tools'.
class ImageFile {
public:
    struct Segment {
        uint64_t address;
        uint64_t size;
        const uint8_t* content;
        uint64_t contentSize;
        uint32_t protection; ///< readable 1, writable 2, runnable 4
        bool isFixed;        ///< not to be written to once its pointers are there
    };

    struct Section {
        uint64_t address;
        uint64_t size;
    };

    /// Ends the program when there is no such file, or it has no such part.
    ImageFile(const char* path, Architecture architecture);

    [[nodiscard]] Architecture architecture() const { return architecture_; }

    /// Whether the file is signed, and as it was when it was.
    [[nodiscard]] bool hasRightSignature() const;

    /// How much memory the segments take.
    [[nodiscard]] size_t memorySize() const;

    /// The segment of that number; false when there are no more.
    [[nodiscard]] bool segment(unsigned number, Segment& segment) const;

    /// The section of that name, or of that kind; of no size when there is none.
    [[nodiscard]] Section sectionNamed(const char* name) const;
    [[nodiscard]] Section sectionOfKind(uint8_t kind) const;

    /// What says where pointers are; null when nothing does.
    [[nodiscard]] const uint8_t* chainedFixups() const;

    /// The address of an exported symbol; false when there is none.
    [[nodiscard]] bool exported(const char* symbol, uint64_t& address) const;

private:
    [[nodiscard]] const uint8_t* command(uint32_t kind) const;
    template <class Condition>
    [[nodiscard]] Section section(Condition fits) const;

    const Architecture architecture_;
    const uint8_t* header_;
};

/// A number of the file, in the order of bytes of the processor.
template <class T>
T readNumber(const uint8_t* place) {
    T number;
    __builtin_memcpy(&number, place, sizeof number);
    return number;
}

/// Some bits of a number.
[[nodiscard]] inline uint64_t bitsOf(uint64_t number, unsigned first, unsigned count) {
    return number >> first & ((1ULL << count) - 1);
}
