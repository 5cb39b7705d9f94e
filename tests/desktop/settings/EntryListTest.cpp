#include "EntryList.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

class EntryListTest : public testing::Test {
protected:
    void write(const std::string& fileName, const std::string& dictionary) const {
        writeRaw(fileName, "<plist version=\"1.0\"><dict>" + dictionary + "</dict></plist>");
    }

    void writeRaw(const std::string& fileName, const std::string& content) const {
        device.write(std::string(EntryList::folder) + "/" + fileName, content);
    }

    void writeBundleEntry(const std::string& fileName, const std::string& label) const {
        write(fileName, "<key>entry</key><dict><key>cell</key><string>PSLinkCell</string><key>bundle</key>"
                        "<string>Pane</string><key>isController</key><true/><key>icon</key>"
                        "<string>icon.png</string><key>label</key><string>" +
                            label + "</string></dict>");
    }

    [[nodiscard]] static std::vector<std::string> labels() {
        std::vector<std::string> all;
        for (const auto& entry : EntryList::read())
            all.push_back(entry.label);
        return all;
    }

    TestDevice device;
};

} // namespace

TEST_F(EntryListTest, ADeviceWithoutTheFolderHasNoEntries) {
    EXPECT_TRUE(EntryList::read().empty());
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(EntryListTest, AnEntryLeadsToABundle) {
    writeBundleEntry("pane.plist", "Pane");
    const auto entries = EntryList::read();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].name, "pane");
    EXPECT_EQ(entries[0].label, "Pane");
    EXPECT_EQ(entries[0].bundle, "Pane");
    EXPECT_EQ(entries[0].folder, "/var/jb/Library/PreferenceBundles/Pane.bundle");
    EXPECT_EQ(entries[0].icon, "icon.png");
    EXPECT_EQ(entries[0].detail, "");
    EXPECT_EQ(entries[0].row.at("isController"), PropertyList(true));
}

TEST_F(EntryListTest, AnEntryMayBeAListOfItsOwn) {
    write("Plain.plist", "<key>title</key><string>Plainly</string><key>items</key><array><dict/></array>");
    const auto entries = EntryList::read();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].label, "Plainly");
    EXPECT_EQ(entries[0].bundle, "");
    EXPECT_EQ(entries[0].folder, EntryList::folder);
}

TEST_F(EntryListTest, TheRowsOwnWordsCountBeforeTheListsTitle) {
    write("Plain.plist",
          "<key>title</key><string>Plainly</string><key>items</key><array/><key>entry</key>"
          "<dict><key>label</key><string>Row</string><key>icon</key><string>a.png</string></dict>");
    const auto entries = EntryList::read();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].label, "Row");
    EXPECT_EQ(entries[0].icon, "a.png");
}

TEST_F(EntryListTest, AnEntryWithoutALabelIsCalledAsItsFile) {
    writeBundleEntry("Nameless.plist", "");
    write("Plain.plist", "<key>items</key><array/>");
    EXPECT_EQ(labels(), (std::vector<std::string>{"Nameless", "Plain"}));
}

TEST_F(EntryListTest, EntriesAreInTheOrderOfTheirLabels) {
    writeBundleEntry("1.plist", "zebra");
    writeBundleEntry("2.plist", "Corvex");
    writeBundleEntry("3.plist", "apple");
    writeBundleEntry("4.plist", "Éclair");
    writeBundleEntry("5.plist", "Banana");
    EXPECT_EQ(labels(), (std::vector<std::string>{"apple", "Banana", "Corvex", "Éclair", "zebra"}));
}

TEST_F(EntryListTest, EntriesOfOneLabelAreInTheOrderOfTheirNames) {
    constexpr int count = 60; // more than are sorted without their order being lost
    for (int number = 0; number < count; ++number)
        writeBundleEntry(std::to_string(100 + number * 37 % count) + ".plist", "Same");
    std::vector<std::string> names;
    for (const auto& entry : EntryList::read())
        names.push_back(entry.name);
    EXPECT_EQ(names.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(std::ranges::is_sorted(names));
}

TEST_F(EntryListTest, WhatIsNoEntryIsLoggedOnceAndLeftOut) {
    writeBundleEntry("good.plist", "Good");
    writeRaw("text.plist", "this is no property list");
    const auto entries = EntryList::read();
    EXPECT_EQ(entries.size(), 1U);
    EXPECT_EQ(device.log().take(),
              std::vector<std::string>{"The entry text.plist is left out: it is no property list."});
}

TEST_F(EntryListTest, SaysWhatAnEntryLacks) {
    writeRaw("a.plist", "<plist version=\"1.0\"><array/></plist>");
    EXPECT_TRUE(labels().empty());
    EXPECT_EQ(device.log().take(),
              std::vector<std::string>{"The entry a.plist is left out: it is no property list."});
    write("a.plist", "");
    EXPECT_TRUE(labels().empty());
    EXPECT_EQ(device.log().take(),
              std::vector<std::string>{"The entry a.plist is left out: it has neither an entry nor items."});
    write("a.plist", "<key>entry</key><dict><key>label</key><string>A</string></dict>");
    EXPECT_TRUE(labels().empty());
    EXPECT_EQ(device.log().take(),
              std::vector<std::string>{
                  "The entry a.plist is left out: its entry names no bundle, and it has no items."});
}

TEST_F(EntryListTest, AFolderOrAPipeIsNoEntry) {
    writeBundleEntry("good.plist", "Good");
    ASSERT_EQ(mkdir(device.hostPath(std::string(EntryList::folder) + "/folder.plist").c_str(), 0700), 0);
    ASSERT_EQ(mkfifo(device.hostPath(std::string(EntryList::folder) + "/pipe.plist").c_str(), 0600), 0);
    EXPECT_EQ(labels(), std::vector<std::string>{"Good"});
    EXPECT_EQ(device.log().take().size(), 2U);
}

TEST_F(EntryListTest, OtherFilesAreNoEntries) {
    writeBundleEntry(".hidden.plist", "Hidden");
    writeBundleEntry("notes.txt", "Notes");
    EXPECT_TRUE(labels().empty());
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(EntryListTest, AnEntryIsFoundByItsNameOrElseItsLabel) {
    writeBundleEntry("one.plist", "two");
    writeBundleEntry("two.plist", "Second");
    const auto byName = EntryList::find("two");
    ASSERT_TRUE(byName);
    EXPECT_EQ(byName->label, "Second");
    const auto byLabel = EntryList::find("Second");
    ASSERT_TRUE(byLabel);
    EXPECT_EQ(byLabel->name, "two");
    EXPECT_FALSE(EntryList::find("three"));
}
