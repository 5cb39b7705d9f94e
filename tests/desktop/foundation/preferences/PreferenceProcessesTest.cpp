#include "ChildProgram.h"
#include "Device.h"
#include "Foundation/NSUserDefaults.h"
#include "TestDevice.h"
#include "preferences/PreferenceFolder.h"
#include "propertylists/PropertyListCoding.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <filesystem>
#include <iterator>
#include <string>

/// Two processes that use one preference domain: this one and a peer.
namespace {

class PreferenceProcessesTest : public testing::Test {
protected:
    [[nodiscard]] std::size_t namesInFolder() const {
        using Entries = std::filesystem::directory_iterator;
        return static_cast<std::size_t>(
            std::distance(Entries(device_.hostPath(PreferenceFolder::path)), Entries()));
    }

    TestDevice device_;
    Ref<NSUserDefaults> defaults_ = NSUserDefaults::initWithSuiteName("a");
    ChildProgram peer_{PREFERENCE_PEER, {device_.hostPath("")}};
};

} // namespace

TEST_F(PreferenceProcessesTest, WritesAreSeenByTheOtherProcessOnceTheyAreSynchronized) {
    ASSERT_EQ(peer_.ask("set a key theirs"), "ok");
    EXPECT_FALSE(defaults_->objectForKey("key"));
    ASSERT_EQ(peer_.ask("sync a"), "true");
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList("theirs"));
    defaults_->setObject("mine", "key");
    EXPECT_EQ(peer_.ask("get a key"), "theirs");
    ASSERT_TRUE(defaults_->synchronize());
    EXPECT_EQ(peer_.ask("get a key"), "mine");
}

TEST_F(PreferenceProcessesTest, ChangesOfBothProcessesToOtherKeysAreAllKept) {
    defaults_->setObject("old", "removed");
    ASSERT_TRUE(defaults_->synchronize());
    ASSERT_EQ(peer_.ask("set a theirs 1"), "ok");
    ASSERT_EQ(peer_.ask("remove a removed"), "ok");
    defaults_->setObject("2", "mine");
    ASSERT_TRUE(defaults_->synchronize());
    ASSERT_EQ(peer_.ask("sync a"), "true");
    EXPECT_EQ(defaults_->dictionaryRepresentation(),
              (PropertyList::Dictionary{{"mine", "2"}, {"theirs", "1"}}));
}

TEST_F(PreferenceProcessesTest, RemovingTheDomainRemovesWhatTheOtherProcessWroteMeanwhile) {
    ASSERT_EQ(peer_.ask("clear a"), "ok");
    defaults_->setObject(1, "key");
    ASSERT_TRUE(defaults_->synchronize());
    ASSERT_EQ(peer_.ask("sync a"), "true");
    EXPECT_EQ(defaults_->dictionaryRepresentation(), PropertyList::Dictionary());
}

TEST_F(PreferenceProcessesTest, ManyWritesAtTheSameTimeLoseNothing) {
    constexpr int count = 200;
    for (int i = 0; i < count; ++i) {
        const auto number = std::to_string(i);
        peer_.sendLine("set a theirs-" + number + " x");
        peer_.sendLine("sync a"); // goes on while this process writes
        defaults_->setObject("x", "mine-" + number);
        ASSERT_TRUE(defaults_->synchronize());
    }
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(peer_.readLine(), "ok");
        ASSERT_EQ(peer_.readLine(), "true");
    }
    EXPECT_EQ(defaults_->dictionaryRepresentation().size(), 2U * count);
    EXPECT_EQ(namesInFolder(), 1U);
}

TEST_F(PreferenceProcessesTest, AWriteThatFailsHalfWayLeavesTheOldFileAndIsTriedAgain) {
    defaults_->setObject("old", "key");
    ASSERT_TRUE(defaults_->synchronize());
    const auto path = std::string(PreferenceFolder::path) + "/a.plist";
    const auto old = device_.read(path);
    ASSERT_EQ(peer_.ask("limit 10000"), "ok");
    ASSERT_EQ(peer_.ask("fill a key 50000"), "ok");
    EXPECT_EQ(peer_.ask("sync a"), "false");
    EXPECT_EQ(peer_.ask("log"), "1");
    EXPECT_EQ(device_.read(path), old);
    EXPECT_EQ(namesInFolder(), 1U);
    EXPECT_EQ(peer_.ask("get a key"), std::string(50'000, 'x'));
    ASSERT_EQ(peer_.ask("limit 1000000"), "ok");
    EXPECT_EQ(peer_.ask("sync a"), "true");
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList(std::string(50'000, 'x')));
}

TEST_F(PreferenceProcessesTest, AProcessThatDiesHoldsNoOtherUp) {
    ASSERT_EQ(peer_.ask("set a key theirs"), "ok");
    ASSERT_EQ(peer_.ask("sync a"), "true");
    peer_.sendLine("set a key unfinished");
    peer_.sendLine("sync a");
    peer_.kill();
    EXPECT_TRUE(WIFSIGNALED(peer_.wait()));
    defaults_->setObject("mine", "key");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList("mine"));
}
