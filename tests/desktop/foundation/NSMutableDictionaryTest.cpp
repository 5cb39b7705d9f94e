#include "Foundation/NSMutableDictionary.h"

#include "ObjectiveC/Weak.h"

#include <gtest/gtest.h>

namespace {

class Kept final : public NSObject {};

} // namespace

TEST(NSMutableDictionaryTest, KeepsObjectsByTheirKeys) {
    const auto dictionary = NSMutableDictionary::dictionary();
    EXPECT_TRUE(dictionary->allValues().empty());
    EXPECT_FALSE(dictionary->objectForKey("a"));
    const Ref<NSObject> first = make<Kept>();
    const Ref<NSObject> second = make<Kept>();
    dictionary->setObject(first, "a");
    dictionary->setObject(second, "");
    EXPECT_EQ(dictionary->objectForKey("a"), first);
    EXPECT_EQ(dictionary->objectForKey(""), second);
    EXPECT_EQ(dictionary->allValues().size(), 2U);
    dictionary->setObject(second, "a");
    EXPECT_EQ(dictionary->objectForKey("a"), second);
    EXPECT_EQ(dictionary->allValues(), (std::vector{second, second}));
}

TEST(NSMutableDictionaryTest, OwnsItsObjectsUntilTheyAreRemoved) {
    const auto dictionary = NSMutableDictionary::dictionary();
    auto object = make<Kept>();
    const Weak<NSObject> watched(object.get());
    dictionary->setObject(object, "a");
    object = nullptr;
    EXPECT_TRUE(watched.strong());
    dictionary->removeAllObjects();
    EXPECT_FALSE(watched.strong());
    EXPECT_FALSE(dictionary->objectForKey("a"));
}
