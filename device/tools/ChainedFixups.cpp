#include "ChainedFixups.h"

#include "MachOFormat.h"
#include "Refusal.h"

#include <utility>

namespace {

constexpr std::uint16_t pageSize = 0x4000;
constexpr std::uint16_t noChain = 0xFFFF;
constexpr std::uint64_t signedBit = 1ULL << 63U;
constexpr std::uint64_t bindBit = 1ULL << 62U;

std::uint64_t bits(std::uint64_t content, unsigned first, unsigned count) {
    return content >> first & ((1ULL << count) - 1);
}

std::int64_t signExtended(std::uint64_t value, unsigned count) {
    const auto sign = 1ULL << (count - 1);
    return static_cast<std::int64_t>((value ^ sign) - sign);
}

} // namespace

ChainedFixups::ChainedFixups(const MachOFile& image)
    : image_(image),
      imageStart_(image.segment("__TEXT").address) {
    const auto& bytes = image.bytes();
    const auto command = image.command(MachOFormat::chainedFixups).offset;
    const std::uint64_t header = bytes.read<std::uint32_t>(command + MachOFormat::dataOffsetField);
    const auto version = bytes.read<std::uint32_t>(header);
    const auto compression = bytes.read<std::uint32_t>(header + 24);
    if (version != 0 || compression != 0)
        bytes.refuse("has fixups of version " + std::to_string(version) + ", compressed by method " +
                     std::to_string(compression) + "; version 0, uncompressed, is known");
    readImports(header);
    startsOffset_ = header + bytes.read<std::uint32_t>(header + 4);
    startsSize_ = header + bytes.read<std::uint32_t>(header + 8) - startsOffset_;
    const auto segmentCount = bytes.read<std::uint32_t>(startsOffset_);
    for (std::uint64_t i = 0; i < segmentCount; ++i)
        if (const auto offset = bytes.read<std::uint32_t>(startsOffset_ + 4 + 4 * i); offset != 0)
            segmentStarts_.push_back(startsOffset_ + offset);
    for (const auto start : segmentStarts_)
        readChains(start);
}

void ChainedFixups::readImports(std::uint64_t header) {
    constexpr std::uint32_t withoutAddend = 1;
    constexpr std::uint32_t withAddend = 2;
    const auto& bytes = image_.bytes();
    const auto format = bytes.read<std::uint32_t>(header + 20);
    if (format != withoutAddend && format != withAddend)
        bytes.refuse("has imports of format " + std::to_string(format) + "; formats 1 and 2 are known");
    const auto names = header + bytes.read<std::uint32_t>(header + 12);
    const auto count = bytes.read<std::uint32_t>(header + 16);
    auto place = header + bytes.read<std::uint32_t>(header + 8);
    for (std::uint32_t i = 0; i < count; ++i, place += 4ULL * format) {
        const auto word = bytes.read<std::uint32_t>(place);
        const auto addend = format == withAddend ? bytes.read<std::uint32_t>(place + 4) : 0;
        imports_.push_back({.library = static_cast<std::uint8_t>(word),
                            .isWeak = (word >> 8U & 1U) != 0,
                            .name = bytes.text(names + (word >> 9U)),
                            .addend = static_cast<std::int32_t>(addend)});
    }
}

void ChainedFixups::readChains(std::uint64_t segmentStart) {
    const auto& bytes = image_.bytes();
    const auto page = bytes.read<std::uint16_t>(segmentStart + 4);
    const auto format = static_cast<Format>(bytes.read<std::uint16_t>(segmentStart + 6));
    if (page != pageSize)
        bytes.refuse("has fixups for pages of " + std::to_string(page) + " bytes; 16384 are known");
    if (format != Format::Plain && format != Format::PlainOffsets && format != Format::Signed)
        bytes.refuse("has pointers of format " + std::to_string(std::to_underlying(format)) +
                     "; formats 2, 6 and 12 are known");
    const auto segment = imageStart_ + bytes.read<std::uint64_t>(segmentStart + 8);
    const auto pageCount = bytes.read<std::uint16_t>(segmentStart + 20);
    for (std::uint64_t i = 0; i < pageCount; ++i) {
        const auto first = bytes.read<std::uint16_t>(segmentStart + 22 + 2 * i);
        if (first == noChain)
            continue;
        if (first >= pageSize)
            bytes.refuse("has a chain that starts at " + hexadecimal(first) + " of its page");
        readChain(format, segment + i * pageSize + first);
    }
}

void ChainedFixups::readChain(Format format, std::uint64_t address) {
    for (;;) {
        const auto fixup =
            decoded(format, address, image_.bytes().read<std::uint64_t>(image_.fileOffset(address)));
        if (fixup.import && *fixup.import >= imports_.size())
            image_.bytes().refuse("binds the pointer at " + hexadecimal(address) + " to import " +
                                  std::to_string(*fixup.import) + " of " + std::to_string(imports_.size()));
        fixups_.push_back(fixup);
        if (fixup.distanceToNext == 0)
            return;
        address += fixup.distanceToNext;
    }
}

ChainedFixups::Fixup ChainedFixups::decoded(Format format, std::uint64_t address,
                                            std::uint64_t content) const {
    Fixup fixup{.address = address};
    if (format == Format::Signed) {
        const auto isSigned = (content & signedBit) != 0;
        fixup.distanceToNext = bits(content, 51, 11) * 8;
        if (isSigned)
            fixup.schema = PointerSchema::decoded(content);
        if ((content & bindBit) != 0) {
            fixup.import = static_cast<std::uint32_t>(bits(content, 0, 24));
            fixup.addend = isSigned ? 0 : signExtended(bits(content, 32, 19), 19);
        } else {
            fixup.target = bits(content, 0, isSigned ? 32 : 43);
            fixup.topByte = isSigned ? 0 : static_cast<std::uint8_t>(bits(content, 43, 8));
        }
        return fixup;
    }
    fixup.distanceToNext = bits(content, 51, 12) * 4;
    if (bits(content, 63, 1) != 0) {
        fixup.import = static_cast<std::uint32_t>(bits(content, 0, 24));
        fixup.addend = static_cast<std::int64_t>(bits(content, 24, 8));
    } else {
        fixup.target = bits(content, 0, 36) - (format == Format::Plain ? imageStart_ : 0);
        fixup.topByte = static_cast<std::uint8_t>(bits(content, 36, 8));
    }
    return fixup;
}

std::uint64_t ChainedFixups::encodedSigned(const Fixup& fixup) {
    const auto refuse = [&](const std::string& what) {
        throw Refusal("the pointer at " + hexadecimal(fixup.address) + " " + what);
    };
    if (fixup.address % 8 != 0 || fixup.distanceToNext % 8 != 0 || fixup.distanceToNext >= pageSize)
        refuse("or the next of its chain is not aligned to eight bytes, or they are too far apart");
    auto content = fixup.distanceToNext / 8 << 51U;
    if (fixup.schema)
        content |= signedBit | fixup.schema->encoded();
    if (fixup.import) {
        if (*fixup.import != bits(*fixup.import, 0, 24) || (fixup.schema && fixup.addend != 0) ||
            fixup.addend != signExtended(bits(static_cast<std::uint64_t>(fixup.addend), 0, 19), 19))
            refuse("is bound to an import or with an addend that it has no room for");
        return content | bindBit | *fixup.import |
               bits(static_cast<std::uint64_t>(fixup.addend), 0, 19) << 32U;
    }
    if (fixup.target != bits(fixup.target, 0, fixup.schema ? 32 : 43) || (fixup.schema && fixup.topByte != 0))
        refuse("has a target or a top byte that it has no room for");
    return content | fixup.target | static_cast<std::uint64_t>(fixup.topByte) << 43U;
}
