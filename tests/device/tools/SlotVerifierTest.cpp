#include "SlotVerifier.h"

#include "ChainedFixups.h"
#include "LinkMap.h"
#include "TestImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

namespace {

using testing::HasSubstr;

SlotVerifier::Count verified(const MachOFile& image, const MachOFile& first) {
    const LinkMap map(TestImages::mapPath());
    SlotVerifier verifier(image, map);
    verifier.verify(first, 0);
    verifier.verify(TestImages::object("OtherObject"), 1);
    return verifier.finish();
}

ChainedFixups::Fixup fixupAt(const MachOFile& image, std::uint64_t slot) {
    const auto table = LinkMap(TestImages::mapPath()).address(0, "_table");
    const ChainedFixups chains(image);
    for (const auto& fixup : chains.fixups())
        if (fixup.address == *table + 8 * slot)
            return fixup;
    ADD_FAILURE() << "no pointer in slot " << slot;
    return {};
}

/// The refusal of the image with the pointer in a slot of its table changed.
template <class Change>
std::string refusalWith(std::uint64_t slot, Change change) {
    auto image = TestImages::finished();
    auto fixup = fixupAt(image, slot);
    change(fixup);
    image.bytes().write(image.fileOffset(fixup.address), ChainedFixups::encodedSigned(fixup));
    return refusalOf([&] { (void)verified(image, TestImages::object("SignedPointers")); });
}

} // namespace

TEST(SlotVerifierTest, AFinishedImageHasWhatItsObjectsAskFor) {
    const auto count = verified(TestImages::finished(), TestImages::object("SignedPointers"));
    EXPECT_EQ(count.verified, 8U); // the shared one, of which the image has one, for both objects
    EXPECT_EQ(count.leftOut, 1U);
}

TEST(SlotVerifierTest, EveryPartOfASchemaIsCompared) {
    EXPECT_THAT(
        refusalWith(0, [](auto& fixup) { fixup.schema->diversity ^= 1U; }),
        HasSubstr("SignedPointers.o: asks for a signed pointer at 0x8 of __const with IA, address, 0x2a; the "
                  "image has IA, address, 0x2b at "));
    EXPECT_THAT(refusalWith(0, [](auto& fixup) { fixup.schema->addressDiversified = false; }),
                HasSubstr("the image has IA, 0x2a at "));
    EXPECT_THAT(refusalWith(0, [](auto& fixup) { fixup.schema->key = PointerSchema::Key::InstructionB; }),
                HasSubstr("the image has IB, address, 0x2a at "));
    EXPECT_THAT(refusalWith(0, [](auto& fixup) { fixup.schema.reset(); }),
                HasSubstr("the image has no signature at "));
}

TEST(SlotVerifierTest, PointersBehindPrivateNamesAreCompared) {
    EXPECT_THAT(refusalWith(8, [](auto& fixup) { fixup.schema->diversity = 0x78; }),
                HasSubstr("with IA, 0x77; the image has IA, 0x78 at "));
    EXPECT_THAT(refusalWith(8, [](auto& fixup) { fixup.target += 4; }),
                HasSubstr("asks for a signed pointer to _localFunction, "));
}

TEST(SlotVerifierTest, SchemasThatChangedPlacesAreNoticed) {
    auto image = TestImages::finished();
    auto first = fixupAt(image, 1);
    auto second = fixupAt(image, 2);
    std::swap(first.schema, second.schema);
    for (const auto& fixup : {first, second})
        image.bytes().write(image.fileOffset(fixup.address), ChainedFixups::encodedSigned(fixup));
    EXPECT_THAT(refusalOf([&] { (void)verified(image, TestImages::object("SignedPointers")); }),
                HasSubstr("; the image has "));
}

TEST(SlotVerifierTest, TargetsAreCompared) {
    EXPECT_THAT(refusalWith(0, [](auto& fixup) { fixup.target += 4; }),
                HasSubstr("asks for a signed pointer to _localFunction, "));
    EXPECT_THAT(refusalWith(3, [](auto& fixup) { fixup.target -= 4; }),
                HasSubstr("asks for a signed pointer to _function, "));
    EXPECT_THAT(refusalWith(4, [](auto& fixup) { fixup.target += 4; }),
                HasSubstr("asks for a signed pointer to _otherFunction, "));
    const auto withoutAddend = *fixupAt(TestImages::finished(), 1).import;
    EXPECT_THAT(
        refusalWith(2, [&](auto& fixup) { fixup.import = withoutAddend; }),
        HasSubstr(
            "asks for a signed pointer to _imported, _imported+16; the image has one to _imported+0 at "));
}

TEST(SlotVerifierTest, ASignatureThatNobodyAsksForIsNoticed) {
    EXPECT_THAT(refusalWith(5, [](auto& fixup) { fixup.schema = PointerSchema{.diversity = 3}; }),
                HasSubstr("is signed with IA, 0x3, which no object asks for"));
}

TEST(SlotVerifierTest, AnImageWithoutTheirPointersIsNoticed) {
    EXPECT_THAT(refusalOf([] {
                    (void)verified(TestImages::linked("SignedPointers"),
                                   TestImages::object("SignedPointers"));
                }),
                HasSubstr("the image has no signature at "));
}

TEST(SlotVerifierTest, AnObjectThatWasNotLinkedIsNoticed) {
    const LinkMap map(TestImages::mapPath());
    const auto image = TestImages::finished();
    SlotVerifier verifier(image, map);
    EXPECT_THAT(refusalOf([&] { verifier.verify(TestImages::object("SignedPointers"), 7); }),
                HasSubstr("of which the map says nothing"));
}
