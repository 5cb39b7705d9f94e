#include "LibArchiveFixture.h"
#include "TarBytes.h"

#include <charconv>
#include <clocale>
#include <numeric>

namespace {

/// What stands in the archive, byte by byte.
class LibArchiveFormatTest : public LibArchiveFixture {
protected:
    /// Packs a file. \returns the archive behind its compression
    [[nodiscard]] std::string tarOf(const std::string& name, std::string_view content) const {
        put(name, content);
        EXPECT_TRUE(pack());
        return tarBytes();
    }

    static std::string zeros(std::size_t count) {
        std::string text;
        text.resize(count);
        return text;
    }

    /// The sum of a header's bytes, with spaces in the place of the sum itself.
    static std::size_t checksumOf(std::string header) {
        header.replace(148, 8, 8, ' ');
        return std::accumulate(header.begin(), header.end(), std::size_t{0}, [](std::size_t sum, char byte) {
            return sum + static_cast<unsigned char>(byte);
        });
    }
};

} // namespace

TEST_F(LibArchiveFormatTest, AHeaderHasTheseFields) {
    const auto header = tarOf("preferences.plist", "hello").substr(0, TarBytes::blockSize);
    EXPECT_EQ(header.substr(0, 100), "preferences.plist" + zeros(83));
    EXPECT_EQ(header.substr(100, 8), std::string("000644 \0", 8)) << "mode";
    EXPECT_EQ(header.substr(108, 8), std::string("000000 \0", 8)) << "owner";
    EXPECT_EQ(header.substr(116, 8), std::string("000000 \0", 8)) << "group";
    EXPECT_EQ(header.substr(124, 12), "00000000005 ") << "size";
    EXPECT_EQ(header.substr(136, 12), "00000000000 ") << "time";
    std::size_t checksum = 0;
    std::from_chars(header.data() + 148, header.data() + 154, checksum, 8);
    EXPECT_EQ(checksum, checksumOf(header));
    EXPECT_EQ(header[156], '0') << "type";
    EXPECT_EQ(header.substr(157, 100), zeros(100)) << "link";
    EXPECT_EQ(header.substr(257, 8), std::string("ustar\00000", 8));
    EXPECT_EQ(header.substr(265, 64), zeros(64)) << "names of owner and group";
    EXPECT_EQ(header.substr(329, 16), "000000 " + zeros(1) + "000000 " + zeros(1)) << "device";
    EXPECT_EQ(header.substr(345), zeros(167)) << "prefix";
}

TEST_F(LibArchiveFormatTest, ContentIsFilledUpToABlockAndTheEndIsZeros) {
    const auto tar = tarOf("a", "hello");
    EXPECT_EQ(tar.substr(512, 512), "hello" + zeros(507));
    EXPECT_GE(tar.size(), 2048U);
    EXPECT_EQ(tar.size() % 512, 0U);
    EXPECT_EQ(tar.substr(1024), zeros(tar.size() - 1024));
}

TEST_F(LibArchiveFormatTest, FilesFollowOneAnotherWithoutAnythingBetweenThem) {
    put("b", std::string(512, 'b'));
    const auto tar = tarOf("a", std::string(512, 'a'));
    EXPECT_EQ(tar.find_first_not_of('\0', 2048), std::string::npos);
    EXPECT_EQ(tar.substr(1024 + 257, 5), "ustar");
}

TEST_F(LibArchiveFormatTest, TheContainerIsGzip) {
    put("a", "hello");
    EXPECT_TRUE(pack());
    const auto bytes = device.read(archivePath);
    EXPECT_EQ(bytes.substr(0, 4), std::string("\x1F\x8B\x08\0", 4)) << "deflated, and no name of a file";
    EXPECT_EQ(bytes[8], '\0') << "neither the fastest nor the smallest compression";
    outputOf("gzip -t '" + hostArchive() + "'");
}

TEST_F(LibArchiveFormatTest, AName100BytesLongNeedsNoExtension) {
    const std::string name(100, 'n');
    const auto tar = tarOf(name, "hello");
    EXPECT_EQ(tar.substr(0, 100), name);
    EXPECT_EQ(tar[156], '0');
}

TEST_F(LibArchiveFormatTest, AnExtensionIsThereWhereANameNeedsOneAlone) {
    const std::string name(101, 'n');
    const auto tar = tarOf(name, "hello");
    EXPECT_EQ(tar[156], 'x');
    EXPECT_EQ(tar.substr(512, 111), "111 path=" + name + "\n");
    EXPECT_EQ(tar[1024 + 156], '0');
    EXPECT_EQ(tar.substr(1536, 5), "hello");
}

TEST_F(LibArchiveFormatTest, APathThatFitsIntoNameAndPrefixNeedsNoExtension) {
    const std::string folder(120, 'f');
    put(folder + "/name", "hello");
    EXPECT_TRUE(pack());
    const auto tar = tarBytes();
    const auto header = tar.rfind("name" + zeros(96));
    ASSERT_NE(header, std::string::npos);
    EXPECT_EQ(tar.substr(header + 345, 121), folder + zeros(1));
    EXPECT_EQ(tar.substr(header + 512, 5), "hello");
}

TEST_F(LibArchiveFormatTest, ANameBeyondASCIIIsInAnExtensionAsUTF8WhateverTheProcesssLocaleSays) {
    ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    const std::string name = "\U0001F600\u00E9";
    const auto tar = tarOf(name, "hello");
    EXPECT_EQ(tar[156], 'x');
    EXPECT_EQ(tar.substr(512, 16), "15 path=" + name + "\n" + zeros(1));
}

TEST_F(LibArchiveFormatTest, ANameThatIsNoUTF8EndsThePacking) {
    put("\xFF", "hello");
    expectFailureWithoutError(pack());
}
