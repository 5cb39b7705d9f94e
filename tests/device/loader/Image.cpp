#include "Image.h"

#include "Imports.h"
#include "Kernel.h"

namespace {

constexpr size_t largestFile = 1U << 20U;
constexpr size_t pageSize = 0x4000;

template <class T>
T read(const uint8_t* place) {
    T value;
    memcpy(&value, place, sizeof value);
    return value;
}

uint64_t bits(uint64_t number, unsigned first, unsigned count) {
    return number >> first & ((1ULL << count) - 1);
}

uint64_t signedPointer(uint64_t pointer, uint64_t modifier, unsigned key) {
    switch (key) {
    case 0: // NOLINT(bugprone-branch-clone): the instructions differ
        __asm("pacia %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    case 1:
        __asm("pacib %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    case 2:
        __asm("pacda %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    default:
        __asm("pacdb %0, %1" : "+r"(pointer) : "r"(modifier));
    }
    return pointer;
}

} // namespace

Image::Image(const char* path, unsigned disturbedKey)
    : file_(Kernel::mapFile(path, largestFile)),
      memory_(Kernel::allocate(largestFile + pageSize)) {
    if (file_ == nullptr || memory_ == nullptr)
        fail("cannot read ", path);
    if (read<uint32_t>(file_) != 0xFEEDFACF || read<uint32_t>(file_ + 8) != 0x80000002)
        fail("no file for arm64e: ", path);
    memory_ += pageSize - reinterpret_cast<uint64_t>(memory_) % pageSize;
    readCommands();
    bindImports();
    const auto* const starts = fixups_ + read<uint32_t>(fixups_ + 4);
    for (uint32_t i = 0; i < read<uint32_t>(starts); ++i)
        if (const auto offset = read<uint32_t>(starts + 4 + 4ULL * i); offset != 0)
            fillSegment(starts + offset, disturbedKey);
}

void Image::runInitialisers() const {
    for (uint64_t i = 0; i < initialiserCount_; ++i)
        reinterpret_cast<void (*)()>(memory_ + read<uint32_t>(memory_ + initialisers_ + 4 * i))();
}

int (*Image::function(const char* symbol) const)() {
    const auto* const symbols = file_ + read<uint32_t>(symbolTable_ + 8);
    const auto* const names = reinterpret_cast<const char*>(file_ + read<uint32_t>(symbolTable_ + 16));
    for (uint32_t i = 0; i < read<uint32_t>(symbolTable_ + 12); ++i)
        if (const auto* const entry = symbols + 16ULL * i; areEqual(names + read<uint32_t>(entry), symbol))
            return reinterpret_cast<int (*)()>(memory_ + read<uint64_t>(entry + 8));
    fail("the bundle does not export ", symbol);
}

void Image::readCommands() {
    const auto* command = file_ + 32;
    for (uint32_t i = 0; i < read<uint32_t>(file_ + 16); ++i) {
        const auto type = read<uint32_t>(command);
        if (type == 0x19)
            readSegment(command);
        else if (type == 0x80000034)
            fixups_ = file_ + read<uint32_t>(command + 8);
        else if (type == 2)
            symbolTable_ = command;
        command += read<uint32_t>(command + 4);
    }
}

void Image::readSegment(const uint8_t* command) {
    constexpr uint32_t initialiserOffsets = 0x16;
    const auto address = read<uint64_t>(command + 24);
    const auto size = read<uint64_t>(command + 48);
    if (address + size > largestFile)
        fail("the bundle is larger than the loader expects");
    memcpy(memory_ + address, file_ + read<uint64_t>(command + 40), size);
    for (uint32_t i = 0; i < read<uint32_t>(command + 64); ++i) {
        const auto* const section = command + 72 + 80ULL * i;
        if (bits(read<uint32_t>(section + 64), 0, 8) != initialiserOffsets)
            continue;
        initialisers_ = read<uint64_t>(section + 32);
        initialiserCount_ = read<uint64_t>(section + 40) / 4;
    }
}

void Image::bindImports() {
    if (fixups_ == nullptr || read<uint32_t>(fixups_ + 20) != 2)
        fail("the bundle's imports are not of the format with addends");
    const auto* const names = reinterpret_cast<const char*>(fixups_ + read<uint32_t>(fixups_ + 12));
    for (uint32_t i = 0; i < read<uint32_t>(fixups_ + 16); ++i) {
        const auto* const import = fixups_ + read<uint32_t>(fixups_ + 8) + 8ULL * i;
        const auto addend = static_cast<int64_t>(read<int32_t>(import + 4));
        imports_[i] =
            Imports::address(names + bits(read<uint32_t>(import), 9, 23)) + static_cast<uint64_t>(addend);
    }
}

void Image::fillSegment(const uint8_t* starts, unsigned disturbedKey) {
    if (read<uint16_t>(starts + 6) != 12)
        fail("the bundle's pointers are not of the format for arm64e");
    for (uint16_t page = 0; page < read<uint16_t>(starts + 20); ++page)
        if (const auto first = read<uint16_t>(starts + 22 + 2ULL * page); first != 0xFFFF)
            fillChain(memory_ + read<uint64_t>(starts + 8) + page * pageSize + first, disturbedKey);
}

void Image::fillChain(uint8_t* place, unsigned disturbedKey) {
    for (uint64_t distance = 1; distance != 0; place += distance) {
        const auto content = read<uint64_t>(place);
        const auto pointer = filled(content, reinterpret_cast<uint64_t>(place), disturbedKey);
        memcpy(place, &pointer, sizeof pointer);
        distance = 8 * bits(content, 51, 11);
    }
}

uint64_t Image::filled(uint64_t content, uint64_t place, unsigned disturbedKey) const {
    const auto isSigned = bits(content, 63, 1) != 0;
    const auto isBound = bits(content, 62, 1) != 0;
    const auto pointer = isBound ? imports_[bits(content, 0, 8)]
                                 : reinterpret_cast<uint64_t>(memory_) + bits(content, 0, isSigned ? 32 : 43);
    if (!isSigned)
        return isBound ? pointer + bits(content, 32, 19) : pointer;
    const auto key = static_cast<unsigned>(bits(content, 49, 2));
    const auto diversity = bits(content, 32, 16) ^ (key == disturbedKey ? 1U : 0U);
    const auto usesAddress = bits(content, 48, 1) != 0;
    return signedPointer(pointer, usesAddress ? bits(place, 0, 48) | diversity << 48U : diversity, key);
}
