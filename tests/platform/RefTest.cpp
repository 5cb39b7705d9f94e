#include "ObjectiveC/Ref.h"

#include "LoggedObject.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

namespace {

class RefTest : public testing::Test {
protected:
    Ref<LoggedObject> object(const std::string& name) { return make<LoggedObject>(name, journal); }

    std::string journal;
};

class Derived : public LoggedObject {
public:
    using LoggedObject::LoggedObject;
};

} // namespace

TEST_F(RefTest, TheLastOwnerEndsTheObjectAtOnce) {
    auto first = object("a");
    auto second = first;
    first = nullptr;
    EXPECT_EQ(journal, "");
    second = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(RefTest, ANewObjectHasOneOwner) {
    {
        const auto only = object("a");
    }
    EXPECT_EQ(journal, "-a");
}

TEST_F(RefTest, MovingKeepsTheOneOwner) {
    auto from = object("a");
    auto to = std::move(from);
    EXPECT_EQ(from.get(), nullptr); // NOLINT(*-use-after-move,*-cplusplus.Move): a moved Ref is empty
    EXPECT_EQ(journal, "");
    to = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(RefTest, ReplacingEndsTheOldObjectAfterTheNewOneIsInPlace) {
    auto slot = object("old");
    std::string seen;
    slot->atEnd = [&] { seen = slot->name(); };
    slot = object("new");
    EXPECT_EQ(seen, "new");
    EXPECT_EQ(journal, "-old");
}

TEST_F(RefTest, AssigningToItselfKeepsTheObject) {
    auto slot = object("a");
    const auto& same = slot;
    slot = same;
    EXPECT_EQ(journal, "");
    EXPECT_EQ(slot->name(), "a");
}

TEST_F(RefTest, RetainAddsAnOwnerAndAdoptDoesNot) {
    auto* leaked = object("a").leak();
    auto retained = retain(leaked);
    auto adopted = adopt(leaked);
    retained = nullptr;
    EXPECT_EQ(journal, "");
    adopted = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(RefTest, NullIsNobodysObject) {
    EXPECT_FALSE(retain<LoggedObject>(nullptr));
    EXPECT_FALSE(adopt<LoggedObject>(nullptr));
    EXPECT_EQ(Ref<LoggedObject>(), nullptr);
}

TEST_F(RefTest, ConvertsToTheBaseAndComparesByObject) {
    const auto derived = make<Derived>("a", journal);
    const Ref<NSObject> base = derived;
    EXPECT_EQ(base, derived);
    EXPECT_FALSE(base == Ref<NSObject>(object("b")));
}

TEST_F(RefTest, DynamicCastAnswersWhatTheObjectIs) {
    const Ref<NSObject> base = object("a");
    EXPECT_TRUE(dynamicCast<LoggedObject>(base));
    EXPECT_FALSE(dynamicCast<Derived>(base));
    EXPECT_FALSE(dynamicCast<Derived>(Ref<NSObject>()));
}

TEST_F(RefTest, CannotBeMadeFromABarePointer) {
    EXPECT_FALSE((std::is_constructible_v<Ref<LoggedObject>, LoggedObject*>));
}

TEST_F(RefTest, WhatItsDestructorRetainsAndReleasesDoesNotEndAnObjectTwice) {
    auto slot = object("a");
    auto* const bare = slot.get();
    slot->atEnd = [bare] {
        const auto again = retain<NSObject>(bare);
        const auto copy = again; // NOLINT(*-unnecessary-copy-initialization): the count is what is tested
    };
    slot = nullptr;
    EXPECT_EQ(journal, "-a");
}
