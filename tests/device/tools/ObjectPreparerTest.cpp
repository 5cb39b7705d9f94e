#include "ObjectPreparer.h"

#include "PointerSchema.h"
#include "SignedSlot.h"
#include "TestImages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>

namespace {

MachOFile prepared(const std::string& name) {
    return {ObjectPreparer(TestImages::object(name)).prepared(), MachOFile::Kind::Object,
            MachOFile::Subtype::Arm64e};
}

} // namespace

TEST(ObjectPreparerTest, NoSignedPointerIsLeft) {
    EXPECT_FALSE(SignedSlot::readAll(TestImages::object("SignedPointers")).empty());
    EXPECT_TRUE(SignedSlot::readAll(prepared("SignedPointers")).empty());
}

TEST(ObjectPreparerTest, EveryPlaceHasItsMarkerAndItsAddend) {
    const auto object = prepared("SignedPointers");
    std::map<std::uint64_t, PointerSchema> markers;
    for (const auto& symbol : object.symbols())
        if (const auto schema = PointerSchema::ofMarker(symbol.name)) {
            EXPECT_TRUE(symbol.isDefined() && symbol.isAlternativeEntry());
            markers[symbol.value] = *schema;
        }
    for (const auto& slot : SignedSlot::readAll(TestImages::object("SignedPointers"))) {
        EXPECT_EQ(object.bytes().read<std::uint64_t>(slot.fileOffset),
                  static_cast<std::uint64_t>(slot.addend));
        if (slot.isInitialiser)
            continue;
        ASSERT_TRUE(markers.contains(slot.address));
        EXPECT_EQ(markers[slot.address], slot.schema);
        markers.erase(slot.address);
    }
    EXPECT_TRUE(markers.empty());
}

TEST(ObjectPreparerTest, TheOtherSymbolsStayAsTheyAre) {
    const auto before = TestImages::object("SignedPointers");
    const auto after = prepared("SignedPointers");
    ASSERT_GT(after.symbols().size(), before.symbols().size());
    for (std::size_t i = 0; i < before.symbols().size(); ++i) {
        EXPECT_EQ(after.symbols()[i].name, before.symbols()[i].name);
        EXPECT_EQ(after.symbols()[i].value, before.symbols()[i].value);
    }
}

TEST(ObjectPreparerTest, AnObjectWithoutSignedPointersKeepsItsSymbols) {
    EXPECT_EQ(prepared("Exceptions").symbols().size(), TestImages::object("Exceptions").symbols().size());
}

TEST(ObjectPreparerTest, ObjectsOfOneNameGetFilesOfDifferentNames) {
    EXPECT_EQ(ObjectPreparer::fileName(0, "a/NSData.cpp.obj"), "0-NSData.cpp.o");
    EXPECT_EQ(ObjectPreparer::fileName(12, "b/NSData.cpp.o"), "12-NSData.cpp.o");
}
