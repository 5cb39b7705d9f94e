#include "AdHocSignature.h"

#include "MachOFormat.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <utility>

namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t hashSize = 32;
constexpr std::size_t superBlobSize = 24; ///< with the index of its only blob, padded
constexpr std::size_t directoryHeaderSize = 88;
constexpr std::size_t alignment = 16;
constexpr std::uint64_t segmentPageSize = 0x4000;

constexpr std::uint32_t superBlobMagic = 0xFADE0CC0;
constexpr std::uint32_t directoryMagic = 0xFADE0C02;
constexpr std::uint32_t directoryVersion = 0x20400;
constexpr std::uint32_t adHocByLinker = 0x20002;
constexpr std::uint32_t sha256WithPages = 0x2002000C; ///< size and type of a hash, platform, log2 of the page

std::size_t roundedUp(std::size_t size, std::size_t multiple) {
    return (size + multiple - 1) / multiple * multiple;
}

std::size_t pageCountOf(std::size_t size) {
    return (size + pageSize - 1) / pageSize;
}

/// Signatures are big-endian, unlike everything else.
void appendBigEndian(FileBytes& bytes, std::initializer_list<std::uint32_t> words) {
    for (const auto word : words)
        for (const unsigned shift : {24U, 16U, 8U, 0U})
            bytes.append(static_cast<std::uint8_t>(word >> shift));
}

void appendWide(FileBytes& bytes, std::uint64_t number) {
    appendBigEndian(bytes, {static_cast<std::uint32_t>(number >> 32U), static_cast<std::uint32_t>(number)});
}

void appendHash(FileBytes& bytes, std::span<const std::uint8_t> page) {
    const auto content = QByteArray::fromRawData(reinterpret_cast<const char*>(page.data()),
                                                 static_cast<qsizetype>(page.size()));
    const auto hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    for (const auto byte : hash)
        bytes.append(static_cast<std::uint8_t>(byte));
}

} // namespace

AdHocSignature::AdHocSignature(std::string identifier) : identifier_(std::move(identifier)) {}

void AdHocSignature::addTo(MachOFile& image) const {
    auto& bytes = image.bytes();
    bytes.padTo(alignment);
    const auto begin = bytes.size();
    const auto content = superBlobSize + directorySize(pageCountOf(begin));
    setSizes(image, begin, roundedUp(content, alignment));
    appendBigEndian(bytes, {superBlobMagic, static_cast<std::uint32_t>(content), 1, 0, superBlobSize, 0});
    addDirectory(bytes, image.segment("__TEXT"));
    bytes.padTo(alignment);
}

std::size_t AdHocSignature::directorySize(std::size_t pageCount) const {
    return directoryHeaderSize + identifier_.size() + 1 + hashSize * pageCount;
}

// These fields are signed too, so they are set before the first page is hashed.
void AdHocSignature::setSizes(MachOFile& image, std::size_t begin, std::size_t size) const {
    auto& bytes = image.bytes();
    const auto command = image.command(MachOFormat::codeSignature).offset;
    bytes.write(command + MachOFormat::dataOffsetField, static_cast<std::uint32_t>(begin));
    bytes.write(command + MachOFormat::dataSizeField, static_cast<std::uint32_t>(size));
    const auto& segment = image.segment("__LINKEDIT");
    const std::uint64_t fileSize = begin + size - segment.fileOffset;
    bytes.write(segment.commandOffset + MachOFormat::segmentFileSizeField, fileSize);
    bytes.write(segment.commandOffset + MachOFormat::segmentMemorySizeField,
                std::uint64_t{roundedUp(fileSize, segmentPageSize)});
}

void AdHocSignature::addDirectory(FileBytes& bytes, const MachOFile::Segment& code) const {
    const auto limit = bytes.size() - superBlobSize;
    const auto pages = pageCountOf(limit);
    const auto hashes = directoryHeaderSize + identifier_.size() + 1;
    appendBigEndian(bytes, {directoryMagic, static_cast<std::uint32_t>(directorySize(pages)),
                            directoryVersion, adHocByLinker, static_cast<std::uint32_t>(hashes),
                            directoryHeaderSize, 0, static_cast<std::uint32_t>(pages),
                            static_cast<std::uint32_t>(limit), sha256WithPages, 0});
    appendBigEndian(bytes, {0, 0, 0}); // no scatter list, no team
    appendWide(bytes, 0);              // the limit, where it does not fit above
    appendWide(bytes, code.fileOffset);
    appendWide(bytes, code.fileSize);
    appendWide(bytes, 0);
    bytes.appendText(identifier_);
    for (std::size_t page = 0; page < limit; page += pageSize)
        appendHash(bytes, bytes.range(page, std::min(pageSize, limit - page)));
}
