#include "ObjectiveC/Weak.h"

#include "LoggedObject.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

class WeakTest : public testing::Test {
protected:
    Ref<LoggedObject> object(const std::string& name) { return make<LoggedObject>(name, journal); }

    std::string journal;
};

} // namespace

TEST_F(WeakTest, ReadsTheObjectWhileItLivesAndNullAfterwards) {
    auto owner = object("a");
    const Weak<LoggedObject> weak(owner);
    EXPECT_EQ(weak.strong(), owner);
    owner = nullptr;
    EXPECT_EQ(weak.strong(), nullptr);
}

TEST_F(WeakTest, DoesNotKeepTheObjectAlive) {
    auto owner = object("a");
    const Weak<LoggedObject> weak(owner);
    owner = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(WeakTest, WhatItAnswersIsKeptAlive) {
    auto owner = object("a");
    const Weak<LoggedObject> weak(owner);
    auto held = weak.strong();
    owner = nullptr;
    EXPECT_EQ(journal, "");
    held = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(WeakTest, ReadsNullInTheObjectsOwnDestructor) {
    auto owner = object("a");
    const Weak<LoggedObject> weak(owner);
    bool readNull = false;
    owner->atEnd = [&] { readNull = weak.strong() == nullptr; };
    owner = nullptr;
    EXPECT_TRUE(readNull);
}

TEST_F(WeakTest, MadeInTheObjectsDestructorReadsNull) {
    auto owner = object("a");
    auto* const bare = owner.get();
    Weak<LoggedObject> weak;
    owner->atEnd = [&] { weak = Weak<LoggedObject>(bare); };
    owner = nullptr;
    EXPECT_EQ(weak.strong(), nullptr);
}

TEST_F(WeakTest, EmptyReadsNull) {
    EXPECT_EQ(Weak<LoggedObject>().strong(), nullptr);
    EXPECT_EQ(Weak<LoggedObject>(Ref<LoggedObject>()).strong(), nullptr);
}

TEST_F(WeakTest, CopiesWatchTheSameObject) {
    const auto owner = object("a");
    const Weak<LoggedObject> weak(owner);
    const Weak<LoggedObject> copy(weak); // NOLINT(*-unnecessary-copy-initialization)
    Weak<LoggedObject> assigned;
    assigned = weak;
    EXPECT_EQ(copy.strong(), owner);
    EXPECT_EQ(assigned.strong(), owner);
}

TEST_F(WeakTest, MovingEmptiesTheSource) {
    const auto owner = object("a");
    Weak<LoggedObject> from(owner);
    Weak<LoggedObject> to(std::move(from));
    EXPECT_EQ(to.strong(), owner);
    EXPECT_EQ(from.strong(), nullptr); // NOLINT(*-use-after-move,*-cplusplus.Move): a moved Weak is empty
    from = std::move(to);
    EXPECT_EQ(from.strong(), owner);
}

TEST_F(WeakTest, AssigningToItselfKeepsWatching) {
    const auto owner = object("a");
    Weak<LoggedObject> weak(owner);
    const auto& same = weak;
    weak = same;
    EXPECT_EQ(weak.strong(), owner);
}

TEST_F(WeakTest, WatchesAnotherObjectAfterAssignment) {
    const auto first = object("a");
    const auto second = object("b");
    Weak<LoggedObject> weak(first);
    weak = second;
    EXPECT_EQ(weak.strong(), second);
}
