#include "objects/LiveObjects.h"

#include "ObjectiveC/Weak.h"

#include <gtest/gtest.h>

namespace {

class Counted : public NSObject {};

class CountedMore final : public Counted {};

class CountedNever final : public Counted {
public:
    [[nodiscard]] bool init() override { return false; }
};

const Class countedClass = Class::define<Counted>("LiveObjectsTestCounted");
const Class moreClass = Class::define<CountedMore, Counted>("LiveObjectsTestCountedMore");

std::size_t count(const Class& kind) {
    return LiveObjects::shared().countOf(kind);
}

} // namespace

TEST(LiveObjectsTest, CountsObjectsOfAClassAndThoseDerivedFromIt) {
    EXPECT_EQ(count(countedClass), 0U);
    const auto one = make<Counted>();
    const auto other = make<CountedMore>();
    EXPECT_EQ(count(countedClass), 2U);
    EXPECT_EQ(count(moreClass), 1U);
}

TEST(LiveObjectsTest, ForgetsAnObjectWithItsLastOwner) {
    auto object = make<Counted>();
    auto other = object;
    object = nullptr;
    EXPECT_EQ(count(countedClass), 1U);
    const Weak<Counted> watched = other;
    other = nullptr;
    EXPECT_EQ(count(countedClass), 0U) << "a weak reference keeps nothing alive";
}

TEST(LiveObjectsTest, AnObjectThatRefusedToBeMadeIsNone) {
    EXPECT_FALSE(make<CountedNever>());
    EXPECT_EQ(count(countedClass), 0U);
}
