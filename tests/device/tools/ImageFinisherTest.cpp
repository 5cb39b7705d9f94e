#include "ImageFinisher.h"

#include "ChainedFixups.h"
#include "MachOFormat.h"
#include "PointerSchema.h"
#include "TestImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <ranges>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::HasSubstr;

/// What the image has at each pointer of its table, for people.
std::vector<std::string> tableOf(const MachOFile& image) {
    const ChainedFixups chains(image);
    std::map<std::uint64_t, std::string> texts;
    for (const auto& fixup : chains.fixups()) {
        auto text = fixup.import ? chains.imports()[*fixup.import].name + "+" +
                                       std::to_string(chains.imports()[*fixup.import].addend + fixup.addend)
                                 : std::string("here");
        texts[fixup.address] = text + (fixup.schema ? ", " + fixup.schema->description() : "");
    }
    const auto values = std::views::values(texts);
    return {values.begin(), values.end()};
}

std::string refusalWith(const std::function<void(MachOFile&)>& change) {
    auto image = TestImages::linked("SignedPointers");
    change(image);
    auto bytes = image.bytes();
    return refusalOf([&] {
        (void)ImageFinisher(TestImages::parsedImage(std::move(bytes), MachOFile::Subtype::Arm64), "test")
            .finished();
    });
}

/// Where the entry of the image's first marker is in its symbol table.
std::uint64_t firstMarker(const MachOFile& image) {
    const auto isMarker = [](const auto& symbol) { return PointerSchema::ofMarker(symbol.name).has_value(); };
    const auto found = std::ranges::find_if(image.symbols(), isMarker);
    const auto entries = image.bytes().read<std::uint32_t>(
        TestImages::field(image, MachOFormat::symbolTable, MachOFormat::dataOffsetField));
    return entries + MachOFormat::symbolSize * static_cast<std::uint64_t>(found - image.symbols().begin());
}

} // namespace

TEST(ImageFinisherTest, PointersAreSignedAsTheObjectsAsk) {
    EXPECT_EQ(
        tableOf(TestImages::finished()),
        (std::vector<std::string>{"here, IA, address, 0x2a", "_imported+0, IB, 0x7",
                                  "_imported+16, DA, address, 0x6ae1", "here, DB, 0xffff", "here, IA, 0x0",
                                  "here", "_imported+8", "here", "here, IA, 0x77", "here, DA, 0x9"}));
}

TEST(ImageFinisherTest, TheHeaderSaysArm64e) {
    EXPECT_EQ(TestImages::finished().bytes().read<std::uint32_t>(MachOFormat::subtypeField), 0x80000002U);
}

TEST(ImageFinisherTest, OnlyExportedAndImportedSymbolsAreLeft) {
    const auto image = TestImages::finished();
    std::vector<std::string> names;
    for (const auto& symbol : image.symbols())
        names.push_back(symbol.name);
    EXPECT_EQ(names, (std::vector<std::string>{"_table", "_imported"}));
}

TEST(ImageFinisherTest, AnotherRunMakesTheSame) {
    const auto first = TestImages::finished();
    const auto second = TestImages::finished();
    EXPECT_TRUE(std::ranges::equal(first.bytes().all(), second.bytes().all()));
}

TEST(ImageFinisherTest, AnImageThatIsFinishedIsRefused) {
    auto bytes = TestImages::finished().bytes();
    bytes.write(MachOFormat::subtypeField, std::uint32_t{0});
    EXPECT_THAT(
        refusalOf([&] {
            (void)ImageFinisher(TestImages::parsedImage(bytes, MachOFile::Subtype::Arm64), "test").finished();
        }),
        HasSubstr("has signed pointers already"));
}

TEST(ImageFinisherTest, CodeWithExceptionsIsRefused) {
    EXPECT_THAT(refusalOf([] { (void)ImageFinisher(TestImages::linked("Exceptions"), "test").finished(); }),
                HasSubstr("uses ___gxx_personality_v0: code with exceptions is not handled"));
}

TEST(ImageFinisherTest, UnknownLoadCommandsAreRefused) {
    EXPECT_THAT(refusalWith([](MachOFile& image) {
                    image.bytes().write(image.command(MachOFormat::uuid).offset, std::uint32_t{0x1E});
                }),
                HasSubstr("has a load command 0x1e, which may have data that would be lost"));
}

TEST(ImageFinisherTest, AMarkerWithoutAPointerIsRefused) {
    EXPECT_THAT(refusalWith([](MachOFile& image) {
                    image.bytes().write(firstMarker(image) + 8, image.segment("__TEXT").address);
                }),
                HasSubstr("has no pointer to sign at "));
}

TEST(ImageFinisherTest, TwoMarkersThatDifferAtOnePlaceAreRefused) {
    EXPECT_THAT(refusalWith([](MachOFile& image) {
                    const auto marker = firstMarker(image);
                    const auto next = image.bytes().read<std::uint64_t>(marker + MachOFormat::symbolSize + 8);
                    image.bytes().write(marker + 8, next);
                }),
                HasSubstr("in two ways, "));
}

TEST(ImageFinisherTest, AnImageWithAnotherOrderOfSymbolsIsRefused) {
    EXPECT_THAT(refusalWith([](MachOFile& image) {
                    const auto field = TestImages::field(image, MachOFormat::dynamicSymbolTable,
                                                         MachOFormat::localSymbolsField);
                    image.bytes().write(field, std::uint32_t{1});
                }),
                HasSubstr("does not have its local symbols first"));
}
