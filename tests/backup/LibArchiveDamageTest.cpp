#include "GzipBytes.h"
#include "LibArchiveFixture.h"
#include "TarBytes.h"

#include <string>
#include <vector>

namespace {

/// What becomes of archives that something has happened to.
class LibArchiveDamageTest : public LibArchiveFixture {
protected:
    /// Two files, the second of two blocks.
    const Tree whole{{"first", "the first file"}, {"second", std::string(700, 's')}};
    const std::string tar =
        TarBytes().file("first", whole.at("first")).file("second", whole.at("second")).ended();

    /// The archive as it is packed.
    [[nodiscard]] std::string packed() const {
        for (const auto& [name, content] : whole)
            put(name, content);
        EXPECT_TRUE(pack());
        return device.read(archivePath);
    }

    /// Unpacks, and expects either an error and nothing, or success. \returns what there is then
    [[nodiscard]] Tree unpackedOf(std::string_view bytes) const {
        const auto result = unpack(bytes);
        auto tree = unpacked();
        if (!result) {
            expectErrorForReading(result);
            EXPECT_EQ(tree, Tree());
        }
        return tree;
    }

    /// Expects of each file a beginning, and nothing else.
    void expectBeginnings(const Tree& tree, const std::string& where) const {
        for (const auto& [name, content] : tree) {
            ASSERT_TRUE(whole.contains(name)) << name << ' ' << where;
            EXPECT_TRUE(whole.at(name).starts_with(content)) << name << ' ' << where;
        }
    }

    static std::size_t sizeOf(const Tree& tree) {
        std::size_t size = 0;
        for (const auto& [name, content] : tree)
            size += 1 + content.size();
        return size;
    }

    static std::string withFlippedBit(std::string bytes, std::size_t bit) {
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
        return bytes;
    }

    /// Cuts the bytes in many places: what is unpacked is the beginning of all, the more the later they are
    /// cut.
    void cut(const std::string& bytes, std::size_t step) const {
        std::size_t before = 0;
        for (std::size_t length = 0; length <= bytes.size(); length += step) {
            const auto tree = unpackedOf(bytes.substr(0, length));
            expectBeginnings(tree, "cut at " + std::to_string(length));
            EXPECT_GE(sizeOf(tree), before) << "cut at " << length;
            before = sizeOf(tree);
        }
        EXPECT_EQ(unpackedOf(bytes), whole);
    }

    /// A bit of each byte of a header, another one from byte to byte.
    static std::vector<std::size_t> bitsOfHeader(std::size_t at) {
        std::vector<std::size_t> bits;
        for (auto byte = at; byte < at + TarBytes::blockSize; ++byte)
            bits.push_back(8 * byte + byte % 8);
        return bits;
    }
};

} // namespace

TEST_F(LibArchiveDamageTest, APackedArchiveThatIsCutOffUnpacksAsFarAsItGoes) {
    cut(packed(), 1);
}

TEST_F(LibArchiveDamageTest, ATarFileThatIsCutOffUnpacksAsFarAsItGoes) {
    cut(tar, 13);
}

TEST_F(LibArchiveDamageTest, ATarFileThatIsCutOffInItsContentKeepsTheFilesBefore) {
    const auto withinSecond = 3 * TarBytes::blockSize + 600;
    const auto tree = unpackedOf(gzipped(tar.substr(0, withinSecond)));
    EXPECT_EQ(tree.at("first"), whole.at("first"));
    EXPECT_TRUE(tree.contains("second"));
    expectBeginnings(tree, "cut");
}

TEST_F(LibArchiveDamageTest, WithAnyBitOfItFlippedAPackedArchiveUnpacksOrIsRefused) {
    const auto bytes = packed();
    std::size_t unharmed = 0;
    for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit)
        unharmed += unpackedOf(withFlippedBit(bytes, bit)) == whole ? 1U : 0U;
    EXPECT_GT(unharmed, 0U) << "the time of its making, for one, is not looked at";
    EXPECT_LT(unharmed, 8 * bytes.size());
}

TEST_F(LibArchiveDamageTest, WithABitOfTheFirstHeaderFlippedTheArchiveIsRefusedOrUnharmed) {
    for (const auto bit : bitsOfHeader(0)) {
        const auto tree = unpackedOf(gzipped(withFlippedBit(tar, bit)));
        EXPECT_TRUE(tree.empty() || tree == whole) << "bit " << bit;
    }
}

TEST_F(LibArchiveDamageTest, WithABitOfTheSecondHeaderFlippedTheFirstFileIsWhole) {
    for (const auto bit : bitsOfHeader(2 * TarBytes::blockSize)) {
        const auto tree = unpackedOf(gzipped(withFlippedBit(tar, bit)));
        EXPECT_TRUE(tree == whole || tree == (Tree{{"first", whole.at("first")}})) << "bit " << bit;
    }
}

TEST_F(LibArchiveDamageTest, WithAWrongChecksumOfTheCompressionTheFilesAreUnpacked) {
    auto bytes = gzipped(tar);
    bytes[bytes.size() - 5] = static_cast<char>(bytes[bytes.size() - 5] ^ 1);
    EXPECT_EQ(unpackedOf(bytes), whole);
}

TEST_F(LibArchiveDamageTest, WhatFollowsTheCompressionIsIgnored) {
    for (const auto& garbage : {std::string("garbage"), std::string(20000, '\0'), std::string(20000, 'x')})
        EXPECT_EQ(unpackedOf(packed() + garbage), whole) << garbage.size();
}

TEST_F(LibArchiveDamageTest, ACompressionOfSeveralPartsIsReadAsOne) {
    for (const std::size_t cut : {100U, 512U, 1500U}) {
        EXPECT_EQ(unpackedOf(gzipped(tar.substr(0, cut)) + gzipped(tar.substr(cut))), whole) << cut;
    }
}

TEST_F(LibArchiveDamageTest, AHeaderThatPromisesMoreThanThereIsGivesWhatThereIs) {
    EXPECT_TRUE(
        unpack(gzipped(TarBytes().extended("size", "1000000").file("a", std::string(1000, 'a')).unended())));
    EXPECT_EQ(unpacked(), (Tree{{"a", std::string(1000, 'a') + std::string(24, '\0')}}));
}

TEST_F(LibArchiveDamageTest, SizesThatNoFileHasEndIt) {
    for (const auto& size : {std::string("9223372036854775807"), std::string("18446744073709551615"),
                             std::string("-1"), std::string(400, '9')}) {
        const auto tree = [&] {
            const auto result = unpack(
                gzipped(TarBytes().file("before", "b").extended("size", size).file("a", "content").ended()));
            EXPECT_TRUE(result) << size;
            return unpacked();
        }();
        EXPECT_EQ(tree.at("before"), "b") << size;
        EXPECT_LE(sizeOf(tree), 5000U) << size;
    }
}
