#include "EntryPage.h"

#include "EntryFixture.h"
#include "PSListControllerPeer.h"
#include "screen/Screen.h"

#include <filesystem>

namespace {

class EntryPageTest : public EntryFixture {
protected:
    Screen screen{{}};
};

using Labels = std::vector<std::string>;

} // namespace

TEST_F(EntryPageTest, ShowsTheRowsOfTheEntrysFile) {
    writeListEntry("plain", 3);
    const auto page = make<EntryPage>("plain");
    EXPECT_EQ(labelsOf(*page), (Labels{"0", "1", "2"}));
}

TEST_F(EntryPageTest, KeepsItsRowsUntilItIsAskedToReload) {
    writeListEntry("plain", 2);
    const auto page = make<EntryPage>("plain");
    EXPECT_EQ(labelsOf(*page).size(), 2U);
    writeListEntry("plain", 3);
    EXPECT_EQ(labelsOf(*page).size(), 2U);
    peerOf<PSListControllerPeer>(*page).reloadSpecifiers();
    EXPECT_EQ(labelsOf(*page).size(), 3U);
}

TEST_F(EntryPageTest, AFileThatHasGoneMeanwhileIsAnEmptyPage) {
    std::filesystem::create_directories(device.hostPath("/var/jb/Library/PreferenceLoader/Preferences"));
    const auto page = make<EntryPage>("gone");
    EXPECT_EQ(labelsOf(*page), Labels());
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(EntryPageTest, AFolderThatHasGoneMeanwhileIsAnEmptyPageToo) {
    const auto page = make<EntryPage>("gone");
    EXPECT_EQ(labelsOf(*page), Labels());
    EXPECT_TRUE(page->specifiers().empty());
}

TEST_F(EntryPageTest, TenThousandRowsAreAllThere) {
    writeListEntry("long", 10'000);
    const auto page = make<EntryPage>("long");
    page->view().setFrame(screen.bounds());
    const auto labels = labelsOf(*page);
    ASSERT_EQ(labels.size(), 10'000U);
    EXPECT_EQ(labels.back(), "9999");
    EXPECT_GT(rowOf(*page, "9999").frame.origin.y, 9999 * 20);
}
