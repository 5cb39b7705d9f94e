#include "PointerSchema.h"

#include "TestImages.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

constexpr PointerSchema classPointer{
    .key = PointerSchema::Key::DataA, .addressDiversified = true, .diversity = 0x6AE1};

} // namespace

TEST(PointerSchemaTest, ItsBitsAreWhereFilesHaveThem) {
    EXPECT_EQ(classPointer.encoded(), 0x0005'6AE1'0000'0000U);
    EXPECT_EQ(PointerSchema::decoded(0x8005'6AE1'1234'5678U), classPointer);
    EXPECT_EQ(PointerSchema().encoded(), 0U);
}

TEST(PointerSchemaTest, EverySchemaSurvivesItsMarker) {
    using Key = PointerSchema::Key;
    for (const auto key : {Key::InstructionA, Key::InstructionB, Key::DataA, Key::DataB})
        for (const auto addressDiversified : {false, true})
            for (const auto diversity : std::array<std::uint16_t, 4>{0, 1, 0x6AE1, 0xFFFF}) {
                const PointerSchema schema{
                    .key = key, .addressDiversified = addressDiversified, .diversity = diversity};
                EXPECT_EQ(PointerSchema::ofMarker(schema.markerName(12)), schema) << schema.description();
            }
}

TEST(PointerSchemaTest, OtherSymbolsAreNoMarkers) {
    EXPECT_EQ(PointerSchema::ofMarker("_main"), std::nullopt);
    EXPECT_EQ(PointerSchema::ofMarker(""), std::nullopt);
    EXPECT_EQ(refusalOf([] { (void)PointerSchema::ofMarker("corvex$signed$12x$0"); }),
              "the symbol corvex$signed$12x$0 is no marker of a signed pointer");
    EXPECT_NE(refusalOf([] { (void)PointerSchema::ofMarker("corvex$signed$12"); }), "");
}

TEST(PointerSchemaTest, PeopleCanReadIt) {
    EXPECT_EQ(classPointer.description(), "DA, address, 0x6ae1");
    EXPECT_EQ(PointerSchema().description(), "IA, 0x0");
}
