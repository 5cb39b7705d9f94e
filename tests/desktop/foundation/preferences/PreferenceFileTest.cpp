#include "preferences/PreferenceFile.h"

#include "Device.h"
#include "Foundation/NSUserDefaults.h"
#include "TestDevice.h"
#include "preferences/PreferenceFolder.h"
#include "propertylists/PropertyListCoding.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

/// What becomes of files in a domain's place that are not what they should be, and of writes that fail.
namespace {

class PreferenceFileTest : public testing::Test {
protected:
    [[nodiscard]] std::string host(const std::string& name) const {
        return device_.hostPath(PreferenceFolder::path + ("/" + name));
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        return device_.read(PreferenceFolder::path + ("/" + name));
    }

    void write(const std::string& name, const std::string& content) const {
        device_.write(PreferenceFolder::path + ("/" + name), content);
    }

    [[nodiscard]] std::size_t namesInFolder() const {
        using Entries = std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(Entries(host("")), Entries()));
    }

    [[nodiscard]] ino_t inodeOf(const std::string& name) const {
        struct stat status{};
        EXPECT_EQ(stat(host(name).c_str(), &status), 0) << name;
        return status.st_ino;
    }

    [[nodiscard]] std::size_t newLogLines() { return device_.log().take().size(); }

    TestDevice device_;
    Ref<NSUserDefaults> defaults_ = NSUserDefaults::initWithSuiteName("a");
};

} // namespace

TEST_F(PreferenceFileTest, ADamagedFileReadsAsEmptyAndIsLoggedOnceForEachFile) {
    write("a.plist", "damaged");
    EXPECT_EQ(defaults_->dictionaryRepresentation(), PropertyList::Dictionary());
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_EQ(newLogLines(), 1U);
    write("a.plist", "damaged in another way");
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_EQ(newLogLines(), 1U);
    EXPECT_EQ(read("a.plist"), "damaged in another way");
}

TEST_F(PreferenceFileTest, AFileThatIsNoDictionaryCountsAsDamaged) {
    write("a.plist", *encodePropertyList(PropertyList::Array{1}, PropertyListFormat::Binary));
    EXPECT_EQ(defaults_->dictionaryRepresentation(), PropertyList::Dictionary());
    EXPECT_EQ(newLogLines(), 1U);
}

TEST_F(PreferenceFileTest, AnXMLFileIsReadAndReplacedByABinaryOne) {
    write("a.plist", *encodePropertyList(PropertyList::Dictionary{{"key", 1}}, PropertyListFormat::XML));
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList(1));
    defaults_->setObject(2, "other");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_TRUE(read("a.plist").starts_with("bplist00"));
    EXPECT_EQ(defaults_->dictionaryRepresentation(), (PropertyList::Dictionary{{"key", 1}, {"other", 2}}));
}

TEST_F(PreferenceFileTest, ADamagedFileIsKeptAsideBeforeItIsReplaced) {
    write("a.plist", "damaged");
    const auto inode = inodeOf("a.plist");
    defaults_->setObject(1, "key");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(read("a.plist.damaged"), "damaged");
    EXPECT_EQ(inodeOf("a.plist.damaged"), inode);
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList(1));
    EXPECT_EQ(namesInFolder(), 2U);
}

TEST_F(PreferenceFileTest, EveryDamagedFileIsKeptUnderANameOfItsOwn) {
    write("a.plist.damaged-2", "somebody else's");
    for (const auto* const content : {"first", "second", "third"}) {
        std::filesystem::remove(host("a.plist"));
        write("a.plist", content);
        defaults_->setObject(1, "key");
        EXPECT_TRUE(defaults_->synchronize());
    }
    EXPECT_EQ(read("a.plist.damaged"), "first");
    EXPECT_EQ(read("a.plist.damaged-2"), "somebody else's");
    EXPECT_EQ(read("a.plist.damaged-3"), "second");
    EXPECT_EQ(read("a.plist.damaged-4"), "third");
}

TEST_F(PreferenceFileTest, ADamagedFileIsNotKeptTwiceWhenItHasItsSecondNameAlready) {
    write("a.plist", "damaged");
    std::filesystem::create_hard_link(host("a.plist"), host("a.plist.damaged"));
    defaults_->setObject(1, "key");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(read("a.plist.damaged"), "damaged");
    EXPECT_EQ(namesInFolder(), 2U);
    EXPECT_EQ(newLogLines(), 1U);
}

TEST_F(PreferenceFileTest, AFolderInTheFilesPlaceStaysAndTheWriteFails) {
    std::filesystem::create_directories(host("a.plist/inner"));
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_EQ(newLogLines(), 1U);
    defaults_->setObject(1, "key");
    EXPECT_FALSE(defaults_->synchronize());
    EXPECT_EQ(newLogLines(), 1U);
    EXPECT_TRUE(std::filesystem::is_directory(host("a.plist/inner")));
    EXPECT_EQ(namesInFolder(), 1U);
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList(1));
}

TEST_F(PreferenceFileTest, APipeInTheFilesPlaceStaysAndNobodyWaitsForIt) {
    ASSERT_EQ(mkfifo(host("a.plist").c_str(), 0600), 0);
    EXPECT_FALSE(defaults_->objectForKey("key"));
    defaults_->setObject(1, "key");
    EXPECT_FALSE(defaults_->synchronize());
    EXPECT_TRUE(std::filesystem::is_fifo(host("a.plist")));
}

TEST_F(PreferenceFileTest, ALinkThatLeadsInACircleStaysAndTheWriteFails) {
    std::filesystem::create_symlink("a.plist", host("a.plist"));
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_FALSE(defaults_->objectForKey("key"));
    EXPECT_EQ(newLogLines(), 1U);
    defaults_->setObject(1, "key");
    EXPECT_FALSE(defaults_->synchronize());
    EXPECT_TRUE(std::filesystem::is_symlink(host("a.plist")));
}

TEST_F(PreferenceFileTest, AFailedWriteIsLoggedKeptAndTriedAgain) {
    defaults_->setObject(1, "key");
    const auto folder = host("");
    std::filesystem::remove(folder);
    EXPECT_FALSE(defaults_->synchronize());
    EXPECT_EQ(newLogLines(), 1U);
    EXPECT_EQ(defaults_->objectForKey("key"), PropertyList(1));
    std::filesystem::create_directory(folder);
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(newLogLines(), 0U);
    EXPECT_TRUE(read("a.plist").starts_with("bplist00"));
}

TEST_F(PreferenceFileTest, ANameThatIsTooLongForAFileFails) {
    const auto defaults = NSUserDefaults::initWithSuiteName(std::string(250, 'a'));
    EXPECT_FALSE(defaults->objectForKey("key"));
    defaults->setObject(1, "key");
    EXPECT_FALSE(defaults->synchronize());
    EXPECT_EQ(namesInFolder(), 0U);
}

TEST_F(PreferenceFileTest, ADomainThatIsTooLargeIsNotWritten) {
    defaults_->setObject(1, "key");
    ASSERT_TRUE(defaults_->synchronize());
    (void)newLogLines();
    const std::string half(std::size_t{33} << 20U, 'x');
    defaults_->setObject(half, "one");
    defaults_->setObject(half, "two");
    EXPECT_FALSE(defaults_->synchronize());
    EXPECT_EQ(newLogLines(), 1U);
    defaults_->removeObjectForKey("two");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(defaults_->objectForKey("one"), PropertyList(half));
}

TEST_F(PreferenceFileTest, TheFileKeepsItsMode) {
    write("a.plist", *encodePropertyList(PropertyList::Dictionary(), PropertyListFormat::Binary));
    ASSERT_EQ(chmod(host("a.plist").c_str(), 0644), 0);
    defaults_->setObject(1, "key");
    EXPECT_TRUE(defaults_->synchronize());
    struct stat status{};
    ASSERT_EQ(stat(host("a.plist").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0644U);
}

TEST_F(PreferenceFileTest, TemporariesOfDeadWritersAreRemovedByTheNextWriteAndNothingElseIs) {
    write(".preferences-1-1", "left");
    write(".preferences-2-9", "left");
    write(".atomic-1-1", "being written");
    write("b.plist", "other");
    defaults_->setObject(1, "key");
    EXPECT_TRUE(defaults_->synchronize());
    EXPECT_EQ(namesInFolder(), 3U);
    EXPECT_EQ(read(".atomic-1-1"), "being written");
    EXPECT_EQ(read("b.plist"), "other");
}
