#include "ImageFile.h"

#include "CodeSignature.h"
#include "Failure.h"
#include "Kernel.h"
#include "Texts.h"

namespace {

constexpr size_t largestFile = 1U << 22U;
constexpr uint32_t universalMagic = 0xCAFEBABE; // the numbers of that header have the other order of bytes
constexpr uint32_t imageMagic = 0xFEEDFACF;
constexpr uint32_t segmentCommand = 0x19;
constexpr uint32_t symbolTableCommand = 2;
constexpr uint32_t signatureCommand = 0x1D;
constexpr uint32_t chainedFixupsCommand = 0x80000034;
constexpr size_t headerSize = 32;

bool isFor(Architecture architecture, uint32_t processor, uint32_t kind) {
    constexpr uint32_t arm64Processor = 0x0100000C;
    constexpr uint32_t arm64eKind = 2;
    return processor == arm64Processor &&
           (bitsOf(kind, 0, 24) == arm64eKind) == (architecture == Architecture::Arm64e);
}

uint32_t readSwapped(const uint8_t* place) {
    return __builtin_bswap32(readNumber<uint32_t>(place));
}

/// The header of the part; null when the file has none.
const uint8_t* partFor(Architecture architecture, const uint8_t* file) {
    if (readSwapped(file) != universalMagic)
        return file;
    for (uint32_t i = 0; i < readSwapped(file + 4); ++i) {
        const auto* const part = file + 8 + 20ULL * i;
        if (isFor(architecture, readSwapped(part), readSwapped(part + 4)))
            return file + readSwapped(part + 8);
    }
    return nullptr;
}

} // namespace

ImageFile::ImageFile(const char* path, Architecture architecture) : architecture_(architecture) {
    const auto* const file = Kernel::mapFile(path, largestFile);
    if (file == nullptr)
        fail("cannot read ", path);
    header_ = partFor(architecture, file);
    if (header_ == nullptr || readNumber<uint32_t>(header_) != imageMagic ||
        !isFor(architecture, readNumber<uint32_t>(header_ + 4), readNumber<uint32_t>(header_ + 8)))
        fail("no code for the architecture is in ", path);
}

bool ImageFile::hasRightSignature() const {
    const auto* const found = command(signatureCommand);
    if (found == nullptr)
        return false;
    const auto place = readNumber<uint32_t>(found + 8);
    return CodeSignature(header_, header_ + place).holds(place);
}

size_t ImageFile::memorySize() const {
    size_t end = 0;
    Segment last{};
    for (unsigned i = 0; segment(i, last); ++i)
        end = last.address + last.size > end ? last.address + last.size : end;
    return end;
}

bool ImageFile::segment(unsigned number, Segment& segment) const {
    constexpr uint32_t fixedOncePointersAreThere = 0x10;
    const auto* command = header_ + headerSize;
    unsigned found = 0;
    for (uint32_t i = 0; i < readNumber<uint32_t>(header_ + 16);
         command += readNumber<uint32_t>(command + 4), ++i) {
        if (readNumber<uint32_t>(command) != segmentCommand || found++ != number)
            continue;
        segment = {.address = readNumber<uint64_t>(command + 24),
                   .size = readNumber<uint64_t>(command + 32),
                   .content = header_ + readNumber<uint64_t>(command + 40),
                   .contentSize = readNumber<uint64_t>(command + 48),
                   .protection = readNumber<uint32_t>(command + 60),
                   .isFixed = (readNumber<uint32_t>(command + 68) & fixedOncePointersAreThere) != 0};
        return true;
    }
    return false;
}

template <class Condition>
ImageFile::Section ImageFile::section(Condition fits) const {
    const auto* command = header_ + headerSize;
    for (uint32_t i = 0; i < readNumber<uint32_t>(header_ + 16);
         command += readNumber<uint32_t>(command + 4), ++i) {
        if (readNumber<uint32_t>(command) != segmentCommand)
            continue;
        for (uint32_t number = 0; number < readNumber<uint32_t>(command + 64); ++number) {
            const auto* const section = command + 72 + 80ULL * number;
            if (fits(section))
                return {.address = readNumber<uint64_t>(section + 32),
                        .size = readNumber<uint64_t>(section + 40)};
        }
    }
    return {};
}

ImageFile::Section ImageFile::sectionNamed(const char* name) const {
    constexpr size_t longestName = 16;
    return section([name](const uint8_t* section) {
        return haveEqualStarts(reinterpret_cast<const char*>(section), name, longestName);
    });
}

ImageFile::Section ImageFile::sectionOfKind(uint8_t kind) const {
    return section(
        [kind](const uint8_t* section) { return bitsOf(readNumber<uint32_t>(section + 64), 0, 8) == kind; });
}

const uint8_t* ImageFile::chainedFixups() const {
    const auto* const found = command(chainedFixupsCommand);
    return found != nullptr ? header_ + readNumber<uint32_t>(found + 8) : nullptr;
}

bool ImageFile::exported(const char* symbol, uint64_t& address) const {
    constexpr unsigned external = 1;
    const auto* const table = command(symbolTableCommand);
    if (table == nullptr)
        return false;
    const auto* const symbols = header_ + readNumber<uint32_t>(table + 8);
    const auto* const names = reinterpret_cast<const char*>(header_ + readNumber<uint32_t>(table + 16));
    for (uint32_t i = 0; i < readNumber<uint32_t>(table + 12); ++i) {
        const auto* const entry = symbols + 16ULL * i;
        const auto isDefined = bitsOf(entry[4], 1, 3) != 0;
        if ((entry[4] & external) == 0 || !isDefined ||
            !areEqual(names + readNumber<uint32_t>(entry), symbol))
            continue;
        address = readNumber<uint64_t>(entry + 8);
        return true;
    }
    return false;
}

const uint8_t* ImageFile::command(uint32_t kind) const {
    const auto* command = header_ + headerSize;
    for (uint32_t i = 0; i < readNumber<uint32_t>(header_ + 16);
         command += readNumber<uint32_t>(command + 4), ++i) {
        if (readNumber<uint32_t>(command) == kind)
            return command;
    }
    return nullptr;
}
