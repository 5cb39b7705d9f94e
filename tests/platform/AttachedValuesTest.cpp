#include "ObjectiveC/AttachedValues.h"

#include "LoggedObject.h"
#include "ObjectiveC/Weak.h"
#include "system/LogRecorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class AttachedValuesTest : public testing::Test {
protected:
    Ref<LoggedObject> object(const std::string& name) { return make<LoggedObject>(name, journal); }

    void attach(const Ref<LoggedObject>& value, std::string_view key = "TempDir") {
        setAttachedValue(*owner, key, Ref<NSObject>(value), Retention::RetainNonatomic);
    }

    std::string journal;
    Ref<LoggedObject> owner = object("owner");
};

using Block = std::function<void()>;

} // namespace

TEST_F(AttachedValuesTest, KeepsATextABlockAndAnObjectApartByKey) {
    int runs = 0;
    const auto field = object("field");
    setAttachedValue(*owner, "BackupName", std::string("My Settings.tar.gz"), Retention::Retain);
    setAttachedValue(*owner, "CompletionBlock", Block([&runs] { ++runs; }), Retention::CopyNonatomic);
    attach(field, "BackupNameTextField");
    EXPECT_EQ(attachedValueOf<std::string>(*owner, "BackupName"), "My Settings.tar.gz");
    const auto block = attachedValueOf<Block>(*owner, "CompletionBlock");
    ASSERT_TRUE(block);
    (*block)();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(attachedValueOf<Ref<NSObject>>(*owner, "BackupNameTextField"), Ref<NSObject>(field));
}

TEST_F(AttachedValuesTest, NothingIsThereBeforeAndAfter) {
    EXPECT_EQ(attachedValueOf<std::string>(*owner, "BackupName"), std::nullopt);
    setAttachedValue(*owner, "BackupName", std::string("a"), Retention::Retain);
    setAttachedValue(*owner, "BackupName", std::monostate(), Retention::Retain);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(attachedValue(*owner, "BackupName")));
}

TEST_F(AttachedValuesTest, AValueOfAnotherKindIsNotAnswered) {
    setAttachedValue(*owner, "BackupName", std::string("a"), Retention::Retain);
    EXPECT_EQ(attachedValueOf<Ref<NSObject>>(*owner, "BackupName"), std::nullopt);
}

TEST_F(AttachedValuesTest, RetainingKeepsTheObjectAlive) {
    attach(object("value"));
    EXPECT_EQ(journal, "");
    setAttachedValue(*owner, "TempDir", std::monostate(), Retention::RetainNonatomic);
    EXPECT_EQ(journal, "-value");
}

TEST_F(AttachedValuesTest, CopyingATextOrBlockKeepsItsPresentState) {
    std::string text = "before";
    setAttachedValue(*owner, "BackupName", text, Retention::CopyNonatomic);
    text = "after";
    EXPECT_EQ(attachedValueOf<std::string>(*owner, "BackupName"), "before");
}

TEST_F(AttachedValuesTest, CopyingAnObjectIsRefusedWithALogLine) {
    LogRecorder log;
    setAttachedValue(*owner, "TempDir", Ref<NSObject>(object("value")), Retention::CopyNonatomic);
    EXPECT_EQ(journal, "-value");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(attachedValue(*owner, "TempDir")));
    EXPECT_EQ(log.take(),
              (std::vector<std::string>{"An object cannot be copied: nothing is attached under TempDir"}));
}

TEST_F(AttachedValuesTest, ReplacingReleasesTheOldValueAfterTheNewOneIsInPlace) {
    auto old = object("old");
    const auto replacement = object("new");
    std::optional<Ref<NSObject>> seen;
    old->atEnd = [&] { seen = attachedValueOf<Ref<NSObject>>(*owner, "TempDir"); };
    attach(old);
    old = nullptr;
    attach(replacement);
    EXPECT_EQ(seen, Ref<NSObject>(replacement));
    EXPECT_EQ(journal, "-old");
}

TEST_F(AttachedValuesTest, AreReleasedAfterTheOwnersDestructor) {
    attach(object("value"));
    owner = nullptr;
    EXPECT_EQ(journal, "-owner-value");
}

TEST_F(AttachedValuesTest, AValueThatLooksBackAtItsEndingOwnerFindsNothing) {
    auto value = object("value");
    auto* const bareOwner = owner.get();
    bool foundNothing = false;
    value->atEnd = [&] {
        foundNothing = std::holds_alternative<std::monostate>(attachedValue(*bareOwner, "TempDir"));
    };
    attach(value);
    value = nullptr;
    owner = nullptr;
    EXPECT_TRUE(foundNothing);
}

TEST_F(AttachedValuesTest, AnEmptyKeyIsAKey) {
    setAttachedValue(*owner, "", std::string("a"), Retention::Retain);
    EXPECT_EQ(attachedValueOf<std::string>(*owner, ""), "a");
}
