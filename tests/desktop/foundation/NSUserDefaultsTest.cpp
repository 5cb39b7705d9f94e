#include "Foundation/NSUserDefaults.h"

#include "Device.h"
#include "ExactPropertyList.h"
#include "RandomPropertyList.h"
#include "TestDevice.h"
#include "preferences/PreferenceFolder.h"
#include "propertylists/PropertyListCoding.h"
#include "time/RealClock.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

const std::string suite = "org.example.suite";

std::string filePath(const std::string& suiteName) {
    return PreferenceFolder::path + ("/" + suiteName) + ".plist";
}

Ref<NSUserDefaults> suiteNamed(const std::string& name) {
    return NSUserDefaults::initWithSuiteName(name);
}

class NSUserDefaultsTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<PropertyList> contentOfFile(const std::string& suiteName) const {
        return decodePropertyList(device_.read(filePath(suiteName)));
    }

    [[nodiscard]] bool hasFile(const std::string& suiteName) const {
        return std::filesystem::exists(device_.hostPath(filePath(suiteName)));
    }

    /// Replaces the file as another process does.
    void replaceFile(const Dictionary& content) const {
        device_.write("/var/mobile/tmp/other", *encodePropertyList(content, PropertyListFormat::Binary));
        std::filesystem::rename(device_.hostPath("/var/mobile/tmp/other"), device_.hostPath(filePath(suite)));
    }

    TestDevice device_;
};

} // namespace

TEST_F(NSUserDefaultsTest, ANewSuiteHoldsNothing) {
    const auto defaults = suiteNamed(suite);
    EXPECT_FALSE(defaults->objectForKey("key"));
    EXPECT_FALSE(defaults->stringForKey("key"));
    EXPECT_EQ(defaults->dictionaryRepresentation(), Dictionary());
    EXPECT_FALSE(hasFile(suite));
}

TEST_F(NSUserDefaultsTest, WritesAreSeenAtOnceByAllSuitesOfTheName) {
    const auto one = suiteNamed(suite);
    const auto other = suiteNamed(suite);
    one->setObject("text", "key");
    EXPECT_EQ(other->objectForKey("key"), PropertyList("text"));
    other->removeObjectForKey("key");
    EXPECT_FALSE(one->objectForKey("key"));
    EXPECT_FALSE(hasFile(suite));
}

TEST_F(NSUserDefaultsTest, WritesOutliveTheSuiteObjectThatMadeThem) {
    suiteNamed(suite)->setObject(5, "key");
    EXPECT_EQ(suiteNamed(suite)->objectForKey("key"), PropertyList(5));
}

TEST_F(NSUserDefaultsTest, SuitesOfOtherNamesDoNotSeeEachOther) {
    suiteNamed(suite)->setObject(5, "key");
    EXPECT_FALSE(suiteNamed("org.example.other")->objectForKey("key"));
}

TEST_F(NSUserDefaultsTest, SynchronizeWritesABinaryFileWithAllKeys) {
    const auto defaults = suiteNamed(suite);
    defaults->setObject(true, "on");
    defaults->setObject(Array{1, "two"}, "list");
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_TRUE(device_.read(filePath(suite)).starts_with("bplist00"));
    EXPECT_EQ(contentOfFile(suite), PropertyList(Dictionary{{"on", true}, {"list", Array{1, "two"}}}));
}

TEST_F(NSUserDefaultsTest, SynchronizeWithoutChangesWritesNothing) {
    const auto defaults = suiteNamed(suite);
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_FALSE(hasFile(suite));
    defaults->setObject(1, "key");
    ASSERT_TRUE(defaults->synchronize());
    std::filesystem::remove(device_.hostPath(filePath(suite)));
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_FALSE(hasFile(suite));
}

TEST_F(NSUserDefaultsTest, WhatAnotherProcessWroteIsSeenByTheNextRead) {
    const auto defaults = suiteNamed(suite);
    replaceFile({{"key", "one"}});
    EXPECT_EQ(defaults->objectForKey("key"), PropertyList("one"));
    replaceFile({{"key", "two"}});
    EXPECT_EQ(defaults->objectForKey("key"), PropertyList("two"));
    std::filesystem::remove(device_.hostPath(filePath(suite)));
    EXPECT_FALSE(defaults->objectForKey("key"));
}

TEST_F(NSUserDefaultsTest, QuickReplacementsOfTheSameSizeAreAllSeen) {
    const auto defaults = suiteNamed(suite);
    for (int value = 100; value < 228; ++value) {
        replaceFile({{"key", value}});
        ASSERT_EQ(defaults->objectForKey("key"), PropertyList(value));
        replaceFile(
            {{"key", 99}}); // unseen in between, so that the next file may get the inode of the one seen
    }
}

TEST_F(NSUserDefaultsTest, ChangesGoOverTheFilesContentAndLeaveTheRest) {
    const auto defaults = suiteNamed(suite);
    defaults->setObject("mine", "changed");
    defaults->removeObjectForKey("removed");
    replaceFile({{"changed", "theirs"}, {"removed", 1}, {"kept", 2}});
    const Dictionary expected{{"changed", "mine"}, {"kept", 2}};
    EXPECT_EQ(defaults->dictionaryRepresentation(), expected);
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(contentOfFile(suite), PropertyList(expected));
}

TEST_F(NSUserDefaultsTest, RemovingTheDomainRemovesAllKeysAndLastsWithSynchronize) {
    const auto defaults = suiteNamed(suite);
    replaceFile({{"old", 1}});
    defaults->setObject(2, "pending");
    defaults->removePersistentDomainForName(suite);
    EXPECT_EQ(defaults->dictionaryRepresentation(), Dictionary());
    EXPECT_FALSE(defaults->objectForKey("old"));
    EXPECT_EQ(contentOfFile(suite), PropertyList(Dictionary{{"old", 1}}));
    defaults->setObject(3, "new");
    EXPECT_EQ(defaults->dictionaryRepresentation(), (Dictionary{{"new", 3}}));
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(contentOfFile(suite), PropertyList(Dictionary{{"new", 3}}));
}

TEST_F(NSUserDefaultsTest, AnotherDomainCanBeRemoved) {
    const auto other = suiteNamed("org.example.other");
    other->setObject(1, "key");
    ASSERT_TRUE(other->synchronize());
    const auto defaults = suiteNamed(suite);
    defaults->setObject(2, "key");
    defaults->removePersistentDomainForName("org.example.other");
    EXPECT_FALSE(other->objectForKey("key"));
    EXPECT_EQ(defaults->objectForKey("key"), PropertyList(2));
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(contentOfFile("org.example.other"), PropertyList(Dictionary()));
}

TEST_F(NSUserDefaultsTest, StringForKeyGivesTextsAndNumbersAsText) {
    const auto defaults = suiteNamed(suite);
    const std::vector<std::pair<PropertyList, std::optional<std::string>>> cases{
        {"text", "text"},   {"", ""},
        {42, "42"},         {-1, "-1"},
        {true, "1"},        {false, "0"},
        {0.5, "0.5"},       {std::numeric_limits<std::uint64_t>::max(), "18446744073709551615"},
        {NSDate{}, {}},     {Array{"a"}, {}},
        {Dictionary(), {}}, {NSData::dataWithBytes("a"), {}}};
    for (const auto& [value, expected] : cases) {
        defaults->setObject(value, "key");
        EXPECT_EQ(defaults->stringForKey("key"), expected) << value.description();
    }
}

TEST_F(NSUserDefaultsTest, TextThatCannotBeKeptIsRefusedWithALogLineAndTheOldValueStays) {
    const auto defaults = suiteNamed(suite);
    defaults->setObject("old", "key");
    for (const std::string& text : {std::string("\xFF"), std::string("a\0b", 3)}) {
        (void)device_.log().take();
        defaults->setObject(text, "key");
        defaults->setObject(Array{Dictionary{{"a", text}}}, "key");
        defaults->setObject(Dictionary{{text, 1}}, "key");
        defaults->setObject(1, text);
        EXPECT_EQ(device_.log().take().size(), 4U);
    }
    EXPECT_EQ(defaults->dictionaryRepresentation(), (Dictionary{{"key", "old"}}));
    EXPECT_TRUE(defaults->synchronize());
}

TEST_F(NSUserDefaultsTest, EveryKindOfValueLastsExactly) {
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomPropertyList random(seed);
    Dictionary expected;
    const auto defaults = suiteNamed(suite);
    for (int i = 0; i < 500; ++i) {
        const auto key = random.text();
        const auto value = random.next();
        defaults->setObject(value, key);
        expected.insert_or_assign(key, value);
    }
    EXPECT_TRUE(defaults->synchronize());
    const auto content = contentOfFile(suite);
    EXPECT_TRUE(content && isExactlyEqual(*content, expected));
    EXPECT_TRUE(isExactlyEqual(suiteNamed(suite)->dictionaryRepresentation(), expected));
}

TEST_F(NSUserDefaultsTest, ANameThatIsNoFileNameKeepsNothingLasting) {
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                    std::string("../a"), std::string("/etc/a"), std::string("a\0b", 3)}) {
        const auto defaults = suiteNamed(name);
        defaults->setObject(1, "key");
        (void)device_.log().take();
        EXPECT_FALSE(defaults->synchronize()) << name;
        EXPECT_EQ(device_.log().take().size(), 1U) << name;
        EXPECT_EQ(defaults->objectForKey("key"), PropertyList(1)) << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty(device_.hostPath(PreferenceFolder::path)));
}

TEST_F(NSUserDefaultsTest, ThreadsCanShareADomain) {
    {
        const auto writeMany = [](int thread) {
            const auto defaults = suiteNamed(suite);
            for (int i = 0; i < 25; ++i) {
                defaults->setObject(i, std::to_string(thread) + '-' + std::to_string(i));
                EXPECT_TRUE(defaults->synchronize());
            }
        };
        const std::array threads{std::jthread(writeMany, 0), std::jthread(writeMany, 1),
                                 std::jthread(writeMany, 2), std::jthread(writeMany, 3)};
    }
    EXPECT_EQ(suiteNamed(suite)->dictionaryRepresentation().size(), 100U);
    EXPECT_EQ(contentOfFile(suite), PropertyList(suiteNamed(suite)->dictionaryRepresentation()));
}

TEST(NSUserDefaultsLifetimeTest, ASuiteObjectMayOutliveTheDevice) {
    const TemporaryFolder folder;
    Ref<NSUserDefaults> defaults;
    {
        const Device device(
            {.root = std::move(*DeviceRoot::open(folder.path())), .clock = std::make_unique<RealClock>()});
        defaults = suiteNamed(suite);
    }
    defaults->setObject(1, "key");
    defaults->removePersistentDomainForName("org.example.other");
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(defaults->objectForKey("key"), PropertyList(1));
    EXPECT_TRUE(std::filesystem::exists(folder.path() + filePath(suite)));
}
