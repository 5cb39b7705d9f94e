#pragma once

#include "ImageFile.h"
#include "PointerSignature.h"

#include <stddef.h>
#include <stdint.h>

/// A bundle in memory, as the device's loader would have it there: the segments of one architecture with
/// their protections, the pointers filled in and, for arm64e, signed by the processor.
class Image {
public:
    /// The address that a symbol is bound to; ends the program when nothing is known of it.
    using Binder = uint64_t (*)(const char* symbol);

    /// What is signed otherwise than the bundle asks for.
    struct Disturbance {
        static constexpr unsigned noKey = 4;
        static constexpr unsigned long noSlot = ~0UL;

        unsigned key = noKey;        ///< every pointer for that key
        unsigned long slot = noSlot; ///< the signed pointer of that number
    };

    /// Ends the program when the file is not what the loader knows.
    Image(const char* path, Architecture architecture, Binder bind, Disturbance disturbance);

    /// Runs what runs at load.
    void runInitialisers() const;

    /// What the bundle exports under a name; ends the program when it does not.
    [[nodiscard]] void* exported(const char* symbol) const;

    /// The records of classes that the bundle brings, and how many there are.
    [[nodiscard]] const void* const* classRecords() const;
    [[nodiscard]] size_t classRecordCount() const;

    [[nodiscard]] bool contains(const void* address) const;

    [[nodiscard]] uint8_t* memory() const { return memory_; }

private:
    void placeSegments();
    void protectSegments() const;
    void bindImports(Binder bind);
    void fillSegment(const uint8_t* starts);
    void fillChain(uint8_t* place, unsigned format);
    [[nodiscard]] uint64_t filledPlain(uint64_t content) const;
    [[nodiscard]] uint64_t filledSigned(uint64_t content, uint64_t place);
    [[nodiscard]] uint64_t import(uint64_t index) const;

    const ImageFile file_;
    const Disturbance disturbance_;
    const uint8_t* const fixups_;
    size_t size_;
    uint8_t* memory_;
    uint64_t* imports_ = nullptr;
    unsigned long importCount_ = 0;
    unsigned long signedSlotCount_ = 0;
};
