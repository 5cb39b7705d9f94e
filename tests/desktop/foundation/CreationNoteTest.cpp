#include "CreationNote.h"

#include "DeviceTest.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "System/FileSystemRepresentation.h"
#include "time/UnixTime.h"

#include <sys/xattr.h>

#include <ctime>
#include <filesystem>
#include <fstream>

namespace {

using namespace std::chrono_literals;

/// What is made goes by the device's clock, which stands days or years from the host's.
class CreationNoteTest : public DeviceTest {
protected:
    [[nodiscard]] double creationOf(std::string_view path) const {
        const auto attributes = files.attributesOfItemAtPath(path);
        return attributes ? unixTimeOf(attributes->fileCreationDate) : 0;
    }

    [[nodiscard]] double now() { return unixTimeOf(device.clock().date()); }

    static constexpr auto aTick = 1e-4; ///< more than what is made at one moment is apart
    NSFileManager& files = NSFileManager::defaultManager();
};

} // namespace

TEST_F(CreationNoteTest, WhatIsMadeHasTheDevicesTime) {
    ASSERT_TRUE(files.createDirectoryAtPath("/a/b", true));
    ASSERT_TRUE(files.createFileAtPath("/a/file", NSData()));
    ASSERT_TRUE(FileSystemRepresentation::ofFileForWriting("/a/b/archive"));
    for (const auto* const path : {"/a", "/a/b", "/a/file", "/a/b/archive"})
        EXPECT_NEAR(creationOf(path), now(), aTick) << path;
}

TEST_F(CreationNoteTest, ACopyIsMadeWhenItIsCopied) {
    ASSERT_TRUE(files.createFileAtPath("/file", NSData()));
    const auto before = now();
    device.advance(24h);
    ASSERT_TRUE(files.copyItemAtPath("/file", "/copy"));
    EXPECT_NEAR(creationOf("/copy"), now(), aTick);
    EXPECT_NEAR(creationOf("/file"), before, aTick);
}

TEST_F(CreationNoteTest, WritingAgainMakesNothingNew) {
    ASSERT_TRUE(files.createFileAtPath("/file", NSData()));
    const auto before = now();
    device.advance(24h);
    ASSERT_TRUE(files.createFileAtPath("/file", NSData::dataWithBytes("more")));
    ASSERT_TRUE(FileSystemRepresentation::ofFileForWriting("/file"));
    ASSERT_TRUE(files.createDirectoryAtPath("/var/mobile", true));
    EXPECT_NEAR(creationOf("/file"), before, aTick);
    EXPECT_NEAR(creationOf("/var/mobile"), before, aTick);
}

TEST_F(CreationNoteTest, WhatTakesAnothersPlaceIsNew) {
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(writeToFileAtomically({}, "/list.plist"));
        EXPECT_NEAR(creationOf("/list.plist"), now(), aTick) << time;
        device.advance(24h);
    }
    device.write("/outside.plist", "");
    ASSERT_TRUE(writeToFileAtomically({}, "/outside.plist"));
    EXPECT_NEAR(creationOf("/outside.plist"), now(), aTick);
}

TEST_F(CreationNoteTest, OfWhatIsMadeAtOneMomentTheLaterIsLater) {
    for (const auto* const path : {"/1", "/2", "/3"})
        ASSERT_TRUE(files.createFileAtPath(path, NSData()));
    EXPECT_LT(creationOf("/1"), creationOf("/2"));
    EXPECT_LT(creationOf("/2"), creationOf("/3"));
}

TEST_F(CreationNoteTest, WhatWasMadeFromOutsideHasTheHostsTime) {
    device.write("/outside", "");
    const auto place = Device::current().root().locate("/outside");
    ASSERT_TRUE(place);
    EXPECT_FALSE(CreationNote::of(*place));
    ASSERT_TRUE(files.createFileAtPath("/outside", NSData())) << "which was there";
    EXPECT_FALSE(CreationNote::of(*place));
    EXPECT_NEAR(creationOf("/outside"), static_cast<double>(std::time(nullptr)), 600);
}

TEST_F(CreationNoteTest, ANoteThatSomebodySpoiledIsNone) {
    ASSERT_TRUE(files.createFileAtPath("/file", NSData()));
    const auto place = Device::current().root().locate("/file");
    ASSERT_TRUE(place);
    ASSERT_TRUE(CreationNote::of(*place));
    ASSERT_EQ(setxattr(device.hostPath("/file").c_str(), "user.corvex.made", "x", 1, 0), 0);
    EXPECT_FALSE(CreationNote::of(*place));
}

/// A note must not be left on what a link in the folder leads to.
TEST_F(CreationNoteTest, WhatALinkLeadsToGetsNone) {
    const TemporaryFolder outside;
    std::ofstream(outside.path() + "/target") << "outside";
    const CreationNote note("/missing");
    std::filesystem::create_symlink(outside.path() + "/target", device.hostPath("/missing"));
    note.made();
    EXPECT_LT(getxattr((outside.path() + "/target").c_str(), "user.corvex.made", nullptr, 0), 0);
}

TEST_F(CreationNoteTest, AFailureNotesNothing) {
    const CreationNote nowhere("/no/such/folder");
    nowhere.made();
    nowhere.replaced();
    EXPECT_FALSE(writeToFileAtomically({}, "/no/such/folder"));
    EXPECT_FALSE(files.copyItemAtPath("/missing", "/copy"));
    EXPECT_FALSE(files.fileExistsAtPath("/copy"));
}
