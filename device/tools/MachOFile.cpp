#include "MachOFile.h"

#include "MachOFormat.h"
#include "Refusal.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint64_t sectionSize = 80;
constexpr std::uint64_t segmentSize = 72; ///< without its sections
constexpr std::size_t nameSize = 16;

std::uint32_t readBigEndian(const FileBytes& bytes, std::uint64_t offset) {
    const auto value = bytes.read<std::uint32_t>(offset);
    return value << 24U | (value & 0xFF00U) << 8U | (value >> 8U & 0xFF00U) | value >> 24U;
}

/// The slice of a universal file, or all of another file.
FileBytes sliceOf(FileBytes bytes, MachOFile::Subtype subtype) {
    constexpr std::uint64_t headerSize = 8;
    constexpr std::uint64_t entrySize = 20;
    if (bytes.read<std::uint32_t>(0) != MachOFormat::universalMagic)
        return bytes;
    const auto count = readBigEndian(bytes, 4);
    for (std::uint64_t entry = headerSize; entry < headerSize + count * entrySize; entry += entrySize) {
        const auto sliceSubtype = readBigEndian(bytes, entry + 4) & MachOFormat::subtypeMask;
        if (readBigEndian(bytes, entry) != MachOFormat::processorArm64 ||
            sliceSubtype != std::to_underlying(subtype))
            continue;
        const auto slice = bytes.range(readBigEndian(bytes, entry + 8), readBigEndian(bytes, entry + 12));
        return {bytes.name(), {slice.begin(), slice.end()}};
    }
    bytes.refuse("has no slice of sub-type " + std::to_string(std::to_underlying(subtype)));
}

} // namespace

bool MachOFile::Symbol::isDefined() const {
    return (type & MachOFormat::debuggingMask) == 0 &&
           (type & MachOFormat::typeMask) == MachOFormat::definedInSection;
}

bool MachOFile::Symbol::isAlternativeEntry() const {
    return (description & MachOFormat::alternativeEntry) != 0;
}

MachOFile::MachOFile(FileBytes bytes, Kind kind, Subtype subtype)
    : bytes_(sliceOf(std::move(bytes), subtype)) {
    checkHeader(kind, subtype);
    readCommands();
    readSymbols();
}

void MachOFile::checkHeader(Kind kind, Subtype subtype) const {
    if (const auto magic = bytes_.read<std::uint32_t>(0); magic != MachOFormat::magic)
        bytes_.refuse("begins with " + hexadecimal(magic) + ": no 64-bit Mach-O file");
    if (const auto processor = bytes_.read<std::uint32_t>(MachOFormat::processorField);
        processor != MachOFormat::processorArm64)
        bytes_.refuse("is for the processor " + hexadecimal(processor) + ", not for arm64");
    if (const auto found = bytes_.read<std::uint32_t>(MachOFormat::subtypeField);
        (found & MachOFormat::subtypeMask) != std::to_underlying(subtype))
        bytes_.refuse("has the sub-type " + hexadecimal(found) + ", where " +
                      hexadecimal(std::to_underlying(subtype)) + " is wanted");
    if (const auto found = bytes_.read<std::uint32_t>(MachOFormat::kindField);
        found != std::to_underlying(kind))
        bytes_.refuse("is a file of kind " + std::to_string(found) + ", where kind " +
                      std::to_string(std::to_underlying(kind)) + " is wanted");
}

const MachOFile::LoadCommand& MachOFile::command(std::uint32_t type) const {
    const auto isWanted = [type](const LoadCommand& command) { return command.type == type; };
    const auto found = std::ranges::find_if(commands_, isWanted);
    if (std::ranges::count_if(commands_, isWanted) != 1)
        bytes_.refuse("does not have exactly one load command " + hexadecimal(type));
    return *found;
}

const MachOFile::Segment& MachOFile::segment(const std::string& name) const {
    const auto found = std::ranges::find(segments_, name, &Segment::name);
    if (found == segments_.end())
        bytes_.refuse("has no segment " + name);
    return *found;
}

std::uint64_t MachOFile::fileOffset(std::uint64_t address) const {
    for (const auto& segment : segments_)
        if (address >= segment.address && address - segment.address < segment.fileSize)
            return segment.fileOffset + (address - segment.address);
    bytes_.refuse("has nothing in the file for the address " + hexadecimal(address));
}

void MachOFile::readCommands() {
    std::uint64_t offset = MachOFormat::headerSize;
    const auto count = bytes_.read<std::uint32_t>(MachOFormat::commandCountField);
    for (std::uint32_t i = 0; i < count; ++i) {
        const LoadCommand command{.type = bytes_.read<std::uint32_t>(offset),
                                  .size = bytes_.read<std::uint32_t>(offset + 4),
                                  .offset = offset};
        if (command.size < 8)
            bytes_.refuse("has a load command of " + std::to_string(command.size) + " bytes");
        commands_.push_back(command);
        if (command.type == MachOFormat::segment)
            readSegment(offset);
        offset += command.size;
    }
}

void MachOFile::readSegment(std::uint64_t command) {
    segments_.push_back({.name = bytes_.fieldText(command + 8, nameSize),
                         .commandOffset = command,
                         .address = bytes_.read<std::uint64_t>(command + 24),
                         .memorySize = bytes_.read<std::uint64_t>(command + 32),
                         .fileOffset = bytes_.read<std::uint64_t>(command + 40),
                         .fileSize = bytes_.read<std::uint64_t>(command + 48)});
    const auto count = bytes_.read<std::uint32_t>(command + 64);
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto header = command + segmentSize + i * sectionSize;
        sections_.push_back({.name = bytes_.fieldText(header, nameSize),
                             .address = bytes_.read<std::uint64_t>(header + 32),
                             .size = bytes_.read<std::uint64_t>(header + 40),
                             .fileOffset = bytes_.read<std::uint32_t>(header + 48),
                             .relocationsOffset = bytes_.read<std::uint32_t>(header + 56),
                             .relocationCount = bytes_.read<std::uint32_t>(header + 60),
                             .flags = bytes_.read<std::uint32_t>(header + 64)});
    }
}

void MachOFile::readSymbols() {
    const auto table = command(MachOFormat::symbolTable).offset;
    const auto entries = bytes_.read<std::uint32_t>(table + MachOFormat::dataOffsetField);
    const auto count = bytes_.read<std::uint32_t>(table + MachOFormat::symbolCountField);
    const auto strings = bytes_.read<std::uint32_t>(table + MachOFormat::stringsOffsetField);
    for (std::uint64_t i = 0; i < count; ++i) {
        const auto entry = entries + i * MachOFormat::symbolSize;
        symbols_.push_back({.name = bytes_.text(std::uint64_t{strings} + bytes_.read<std::uint32_t>(entry)),
                            .type = bytes_.read<std::uint8_t>(entry + 4),
                            .section = bytes_.read<std::uint8_t>(entry + 5),
                            .description = bytes_.read<std::uint16_t>(entry + 6),
                            .value = bytes_.read<std::uint64_t>(entry + 8)});
    }
}
