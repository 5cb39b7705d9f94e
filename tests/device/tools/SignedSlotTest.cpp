#include "SignedSlot.h"

#include "MachOFormat.h"
#include "TestImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>

namespace {

/// What the slots of an object ask for, for people, by their distance from the start of `__const`.
std::map<std::uint64_t, std::string> asked(const MachOFile& object) {
    std::map<std::uint64_t, std::string> texts;
    for (const auto& slot : SignedSlot::readAll(object))
        if (!slot.isInitialiser)
            texts[slot.address - object.sections()[1].address] = object.symbols()[slot.symbol].name + "+" +
                                                                 std::to_string(slot.addend) + " " +
                                                                 slot.schema.description();
    return texts;
}

/// The refusal of the object with its first slot changed.
template <class Change>
std::string refusalWith(Change change) {
    auto object = TestImages::object("OtherObject");
    change(object.bytes(), SignedSlot::readAll(object).front());
    return refusalOf([&] { (void)SignedSlot::readAll(object); });
}

void clearBit(FileBytes& bytes, const SignedSlot& slot, unsigned bit) {
    bytes.write(slot.relocation + 4, bytes.read<std::uint32_t>(slot.relocation + 4) & ~(1U << bit));
}

} // namespace

TEST(SignedSlotTest, EachIsReadWithItsSchemaAndTarget) {
    EXPECT_EQ(asked(TestImages::object("SignedPointers")),
              (std::map<std::uint64_t, std::string>{{0, "_localFunction+0 IA, address, 0x2a"},
                                                    {8, "_imported+0 IB, 0x7"},
                                                    {16, "_imported+16 DA, address, 0x6ae1"},
                                                    {24, "_function+4 DB, 0xffff"},
                                                    {32, "_otherFunction+0 IA, 0x0"},
                                                    {64, "_localFunction+0 IA, 0x77"},
                                                    {72, "_localFunction+0 IA, 0x5"},
                                                    {80, "_sharedTable+0 DA, 0x9"}}));
}

TEST(SignedSlotTest, InitialisersAreTold) {
    const auto slots = SignedSlot::readAll(TestImages::object("SignedPointers"));
    EXPECT_EQ(std::ranges::count_if(slots, &SignedSlot::isInitialiser), 1);
}

TEST(SignedSlotTest, AnObjectWithoutAnyHasNone) {
    EXPECT_TRUE(SignedSlot::readAll(TestImages::object("Exceptions")).empty());
}

TEST(SignedSlotTest, WhatTheCompilerDoesNotMakeIsRefused) {
    EXPECT_THAT(
        refusalWith([](auto& bytes, const auto& slot) { clearBit(bytes, slot, 25); }),
        testing::EndsWith(
            "the signed pointer at 0x0 of __const is not one of eight bytes with an absolute address"));
    EXPECT_THAT(refusalWith([](auto& bytes, const auto& slot) { clearBit(bytes, slot, 27); }),
                testing::EndsWith("the signed pointer at 0x0 of __const points to no symbol"));
    EXPECT_THAT(
        refusalWith([](auto& bytes, const auto& slot) { bytes.write(slot.fileOffset, std::uint64_t{5}); }),
        testing::EndsWith("holds 0x5, which does not ask for a signature"));
}

TEST(SignedSlotTest, ASlotThatIsNotAlignedIsRefused) {
    auto object = TestImages::object("SignedPointers");
    const auto slot = SignedSlot::readAll(object).front();
    object.bytes().write(slot.relocation, std::uint32_t{4});
    object.bytes().write(object.sections()[1].fileOffset + 4ULL, std::uint64_t{1} << 63U);
    EXPECT_THAT(refusalOf([&] { (void)SignedSlot::readAll(object); }),
                testing::HasSubstr("is not aligned to eight bytes"));
}

TEST(SignedSlotTest, AnInitialiserWithADiversityIsRefused) {
    auto object = TestImages::object("SignedPointers");
    const auto slots = SignedSlot::readAll(object);
    const auto initialiser = std::ranges::find_if(slots, &SignedSlot::isInitialiser);
    object.bytes().write(initialiser->fileOffset, 1ULL << 63U | 7ULL << 32U);
    EXPECT_THAT(
        refusalOf([&] { (void)SignedSlot::readAll(object); }),
        testing::EndsWith(
            "an initialiser in __mod_init_func is to be signed with IA, 0x7, which an offset cannot be"));
}
