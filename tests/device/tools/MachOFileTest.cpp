#include "MachOFile.h"

#include "MachOFormat.h"
#include "TestImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace {

std::vector<std::string> sectionNames(const MachOFile& file) {
    std::vector<std::string> names;
    for (const auto& section : file.sections())
        names.push_back(section.name);
    return names;
}

const MachOFile::Symbol& symbol(const MachOFile& file, const std::string& name) {
    const auto found = std::ranges::find(file.symbols(), name, &MachOFile::Symbol::name);
    EXPECT_NE(found, file.symbols().end()) << name;
    return *found;
}

/// The refusal of the object with a number of its header changed.
std::string refusalWith(std::uint64_t field, std::uint32_t value) {
    auto bytes = TestImages::objectBytes("OtherObject");
    bytes.write(field, value);
    return refusalOf([&] { (void)MachOFile(bytes, MachOFile::Kind::Object, MachOFile::Subtype::Arm64e); });
}

/// A universal file whose only slice, of a sub-type, is the object.
FileBytes universal(std::uint8_t subtype) {
    const auto object = TestImages::objectBytes("OtherObject");
    const auto size = static_cast<std::uint32_t>(object.size());
    FileBytes bytes("universal",
                    {0xCA, 0xFE, 0xBA, 0xBE, 0, 0, 0, 1, 1, 0, 0, 12, 0, 0, 0, subtype, 0, 0, 0, 28});
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes.append(static_cast<std::uint8_t>(size >> shift));
    bytes.append(std::uint32_t{0});
    bytes.append(object.all());
    return bytes;
}

} // namespace

TEST(MachOFileTest, AnObjectHasItsSectionsAndSymbols) {
    const auto object = TestImages::object("SignedPointers");
    EXPECT_EQ(sectionNames(object), (std::vector<std::string>{"__text", "__const", "__mod_init_func"}));
    const auto& table = symbol(object, "_table");
    EXPECT_TRUE(table.isDefined());
    EXPECT_FALSE(table.isAlternativeEntry());
    EXPECT_EQ(table.section, 2);
    EXPECT_EQ(table.value, object.sections()[1].address);
    EXPECT_FALSE(symbol(object, "_imported").isDefined());
}

TEST(MachOFileTest, AnImageHasItsSegments) {
    const auto image = TestImages::linked("SignedPointers");
    EXPECT_EQ(image.segment("__TEXT").fileOffset, 0U);
    const auto& constants = image.segment("__DATA_CONST");
    EXPECT_EQ(image.fileOffset(constants.address + 8), constants.fileOffset + 8);
    EXPECT_NE(refusalOf([&] { (void)image.fileOffset(0x7000'0000); }), "");
    EXPECT_NE(refusalOf([&] { (void)image.segment("__NOWHERE"); }), "");
    EXPECT_NE(refusalOf([&] { (void)image.command(0x77); }), "");
}

TEST(MachOFileTest, OfAUniversalFileOneSliceIsRead) {
    const MachOFile object(universal(2), MachOFile::Kind::Object, MachOFile::Subtype::Arm64e);
    EXPECT_EQ(object.bytes().size(), TestImages::objectBytes("OtherObject").size());
    EXPECT_EQ(object.symbols().size(), TestImages::object("OtherObject").symbols().size());
    EXPECT_EQ(
        refusalOf([] { (void)MachOFile(universal(0), MachOFile::Kind::Object, MachOFile::Subtype::Arm64e); }),
        "universal: has no slice of sub-type 2");
}

TEST(MachOFileTest, OtherFilesAreRefusedByName) {
    EXPECT_THAT(refusalWith(0, 0x464C457F),
                testing::EndsWith("OtherObject.o: begins with 0x464c457f: no 64-bit Mach-O file"));
    EXPECT_THAT(refusalWith(MachOFormat::processorField, 7),
                testing::EndsWith("is for the processor 0x7, not for arm64"));
    EXPECT_THAT(refusalWith(MachOFormat::subtypeField, 0),
                testing::EndsWith("has the sub-type 0x0, where 0x2 is wanted"));
    EXPECT_THAT(refusalWith(MachOFormat::kindField, 2),
                testing::EndsWith("is a file of kind 2, where kind 1 is wanted"));
    EXPECT_THAT(refusalWith(MachOFormat::headerSize + 4, 0),
                testing::EndsWith("has a load command of 0 bytes"));
}

TEST(MachOFileTest, ACutFileIsReadOrRefused) {
    const auto whole = TestImages::objectBytes("OtherObject");
    std::size_t refused = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        auto cut = whole;
        cut.truncate(size);
        if (!refusalOf([&] {
                 (void)MachOFile(cut, MachOFile::Kind::Object, MachOFile::Subtype::Arm64e);
             }).empty())
            ++refused;
    }
    EXPECT_GT(refused, whole.size() - 8); // the names of symbols come last, padded to eight bytes
}
