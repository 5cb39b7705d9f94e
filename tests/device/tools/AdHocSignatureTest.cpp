#include "AdHocSignature.h"

#include "MachOFormat.h"
#include "TestImages.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <cstdint>

namespace {

constexpr std::uint64_t pageSize = 4096;
constexpr std::uint64_t directory = 24; ///< in the signature

std::uint32_t bigEndian(const FileBytes& bytes, std::uint64_t offset) {
    std::uint32_t number = 0;
    for (const auto byte : bytes.range(offset, 4))
        number = number << 8U | byte;
    return number;
}

std::uint64_t signatureOf(const MachOFile& image) {
    return image.bytes().read<std::uint32_t>(
        TestImages::field(image, MachOFormat::codeSignature, MachOFormat::dataOffsetField));
}

bool pageMatches(const FileBytes& bytes, std::uint64_t signature, std::uint64_t page) {
    const auto begin = page * pageSize;
    const auto content = bytes.range(begin, std::min(pageSize, signature - begin));
    const QByteArray text(reinterpret_cast<const char*>(content.data()),
                          static_cast<qsizetype>(content.size()));
    const auto hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    const auto hashes = signature + directory + bigEndian(bytes, signature + directory + 16);
    return std::ranges::equal(hash, bytes.range(hashes + 32 * page, 32), [](char left, std::uint8_t right) {
        return static_cast<std::uint8_t>(left) == right;
    });
}

} // namespace

TEST(AdHocSignatureTest, EveryPageIsHashed) {
    const auto image = TestImages::finished();
    const auto signature = signatureOf(image);
    const auto pages = bigEndian(image.bytes(), signature + directory + 28);
    EXPECT_EQ(pages, (signature + pageSize - 1) / pageSize);
    for (std::uint64_t page = 0; page < pages; ++page)
        EXPECT_TRUE(pageMatches(image.bytes(), signature, page)) << page;
}

// The linker's own signature, over the same kind of image, is the measure.
TEST(AdHocSignatureTest, ItHasTheShapeOfTheLinkers) {
    const auto ours = TestImages::finished();
    const auto theirs = TestImages::linked("SignedPointers");
    const auto our = signatureOf(ours);
    const auto their = signatureOf(theirs);
    for (const std::uint64_t word : {0U, 8U, 12U, 16U}) // magic, count, slot, place
        EXPECT_EQ(bigEndian(ours.bytes(), our + word), bigEndian(theirs.bytes(), their + word)) << word;
    // Magic, version, flags, identifier's place, special slots, kinds of hash and page, and unused words.
    for (const std::uint64_t word :
         {0U, 8U, 12U, 20U, 24U, 36U, 40U, 44U, 48U, 52U, 56U, 60U, 64U, 68U, 72U, 76U, 80U, 84U})
        EXPECT_EQ(bigEndian(ours.bytes(), our + directory + word),
                  bigEndian(theirs.bytes(), their + directory + word))
            << word;
}

TEST(AdHocSignatureTest, ItIsLastAndNamesTheCode) {
    const auto image = TestImages::finished();
    const auto signature = signatureOf(image);
    EXPECT_EQ(signature % 16, 0U);
    EXPECT_EQ(image.bytes().text(signature + directory + 88), "test");
    const auto& segment = image.segment("__LINKEDIT");
    EXPECT_EQ(segment.fileOffset + segment.fileSize, image.bytes().size());
    EXPECT_GE(segment.memorySize, segment.fileSize);
    EXPECT_EQ(segment.memorySize % 0x4000, 0U);
}
