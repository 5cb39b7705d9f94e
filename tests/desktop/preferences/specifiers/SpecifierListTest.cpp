#include "specifiers/SpecifierList.h"

#include "DesktopBundle.h"
#include "DesktopImage.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <QImage>
#include <string>
#include <vector>

namespace {

class Target : public NSObject {};

class SpecifierListTest : public testing::Test {
protected:
    SpecifierListTest() { device_.write("/bundle/Info.plist", "{}"); }

    /// Writes the inside of the list's dictionary, and reads the list.
    SpecifierList read(const std::string& inside) {
        device_.write("/bundle/List.plist", "<plist version=\"1.0\"><dict>" + inside + "</dict></plist>");
        return readAgain();
    }

    SpecifierList readItems(const std::string& items) {
        return read("<key>items</key><array>" + items + "</array>");
    }

    SpecifierList readAgain() {
        return SpecifierList::read(*DesktopBundle::withPath("/bundle"), "List", *target_);
    }

    static DesktopSpecifier& at(const SpecifierList& list, std::size_t index) {
        return dynamic_cast<DesktopSpecifier&>(*list.specifiers.at(index));
    }

    std::vector<std::string> log() { return device_.log().take(); }

    TestDevice device_;
    Ref<NSObject> target_ = make<Target>();
};

using Lines = std::vector<std::string>;

constexpr auto plainRow =
    "<dict><key>id</key><string>a</string><key>label</key><string>Label</string></dict>";

} // namespace

TEST_F(SpecifierListTest, ReadsTheTitleAndTheRowsInOrder) {
    const auto list = read("<key>title</key><string>Title</string><key>items</key><array>"
                           "<dict><key>id</key><string>b</string></dict>"
                           "<dict><key>id</key><string>a</string></dict></array>");
    EXPECT_EQ(list.title, "Title");
    ASSERT_EQ(list.specifiers.size(), 2U);
    EXPECT_EQ(at(list, 0).identifier(), "b");
    EXPECT_EQ(at(list, 1).identifier(), "a");
    EXPECT_EQ(at(list, 0).target(), target_);
    EXPECT_TRUE(log().empty());
}

TEST_F(SpecifierListTest, KeepsPropertiesThatItDoesNotKnow) {
    const auto list = readItems("<dict><key>rule</key><array><integer>3</integer></array></dict>");
    EXPECT_EQ(at(list, 0).propertyForKey("rule"), PropertyList(PropertyList::Array{3}));
    EXPECT_TRUE(log().empty());
}

TEST_F(SpecifierListTest, AMissingListHasNoRowsAndOneLine) {
    EXPECT_TRUE(readAgain().specifiers.empty());
    EXPECT_EQ(log(), (Lines{"/bundle/List.plist: there is no list of rows, or it is damaged."}));
}

TEST_F(SpecifierListTest, ADamagedListHasNoRowsAndOneLine) {
    for (const auto* const content :
         {"", "x", "bplist00", "<plist><dict><key>items", "<plist version=\"1.0\"><array/></plist>"}) {
        device_.write("/bundle/List.plist", content);
        EXPECT_TRUE(readAgain().specifiers.empty()) << content;
        EXPECT_EQ(log().size(), 1U) << content;
    }
}

TEST_F(SpecifierListTest, AListWithoutItemsHasNoRowsAndOneLine) {
    for (const auto* const inside : {"", "<key>items</key><string>x</string>", "<key>items</key><dict/>"}) {
        EXPECT_TRUE(read(inside).specifiers.empty()) << inside;
        EXPECT_EQ(log(), (Lines{"/bundle/List.plist: there is no array of items."})) << inside;
    }
}

TEST_F(SpecifierListTest, ItemsThatAreNoDictionariesAreLeftOut) {
    const auto list = readItems("<string>x</string>" + std::string(plainRow) + "<array/>");
    ASSERT_EQ(list.specifiers.size(), 1U);
    EXPECT_EQ(at(list, 0).identifier(), "a");
    EXPECT_EQ(log(), (Lines{"/bundle/List.plist: item 1 is not a dictionary; it is left out.",
                            "/bundle/List.plist: item 3 is not a dictionary; it is left out."}));
}

TEST_F(SpecifierListTest, ATitleThatIsNoTextIsNone) {
    EXPECT_EQ(read("<key>title</key><integer>3</integer><key>items</key><array/>").title, "");
}

TEST_F(SpecifierListTest, AnUnknownKindIsKeptWithALine) {
    const auto list = readItems("<dict><key>cell</key><string>PSFancyCell</string></dict>");
    EXPECT_EQ(at(list, 0).kind(), SpecifierKind::Unknown);
    EXPECT_EQ(at(list, 0).kindName(), "PSFancyCell");
    EXPECT_EQ(log(), (Lines{"/bundle/List.plist: item 1: there is no cell 'PSFancyCell'; a plain row stands "
                            "for it."}));
}

TEST_F(SpecifierListTest, TextsAreInTheUsersLanguage) {
    device_.write("/bundle/en.lproj/List.strings",
                  "\"Label\" = \"A row\"; \"Foot\" = \"Below\"; \"One\" = \"1st\"; \"Sure?\" = \"Really?\"; "
                  "\"Title\" = \"The title\"; \"a\" = \"wrong\";");
    const auto list = read("<key>title</key><string>Title</string><key>items</key><array>"
                           "<dict><key>id</key><string>a</string><key>label</key><string>Label</string>"
                           "<key>footerText</key><string>Foot</string>"
                           "<key>validTitles</key><array><string>One</string><string>Two</string></array>"
                           "<key>confirmation</key><dict><key>prompt</key><string>Sure?</string></dict>"
                           "</dict></array>");
    EXPECT_EQ(list.title, "The title");
    EXPECT_EQ(at(list, 0).label(), "A row");
    EXPECT_EQ(at(list, 0).textForKey("footerText"), "Below");
    EXPECT_EQ(at(list, 0).identifier(), "a");
    EXPECT_EQ(at(list, 0).propertyForKey("validTitles"), PropertyList(PropertyList::Array{"1st", "Two"}));
    EXPECT_EQ(at(list, 0).propertyForKey("confirmation"),
              PropertyList(PropertyList::Dictionary{{"prompt", "Really?"}}));
}

TEST_F(SpecifierListTest, RowsThatNeedWhatTheDeviceLacksAreDropped) {
    const auto requiring = [](const std::string& capabilities) {
        return "<dict><key>id</key><string>a</string><key>requiredCapabilities</key>" + capabilities +
               "</dict>";
    };
    EXPECT_EQ(readItems(requiring("<array><string>wifi</string></array>")).specifiers.size(), 1U);
    EXPECT_EQ(
        readItems(requiring("<array><string>wifi</string><string>warp</string></array>")).specifiers.size(),
        0U);
    EXPECT_EQ(readItems(requiring("<dict><key>warp</key><false/></dict>")).specifiers.size(), 1U);
    EXPECT_EQ(readItems(requiring("<dict><key>warp</key><true/></dict>")).specifiers.size(), 0U);
    EXPECT_EQ(readItems(requiring("<array><integer>1</integer></array>")).specifiers.size(), 0U);
    EXPECT_TRUE(log().empty());
    EXPECT_EQ(readItems(requiring("<string>warp</string>")).specifiers.size(), 1U);
    EXPECT_EQ(log().size(), 1U);
}

TEST_F(SpecifierListTest, IconsComeFromTheBundle) {
    QImage picture(87, 87, QImage::Format_RGB32);
    picture.fill(Qt::red);
    device_.write("/bundle/icon@3x.png", "");
    ASSERT_TRUE(picture.save(QString::fromStdString(device_.hostPath("/bundle/icon@3x.png"))));
    const auto list = readItems("<dict><key>icon</key><string>icon.png</string></dict>"
                                "<dict><key>hasIcon</key><true/></dict>"
                                "<dict><key>icon</key><string>none.png</string></dict>"
                                "<dict><key>icon</key><string>../../etc/passwd</string></dict><dict/>");
    ASSERT_TRUE(at(list, 0).icon());
    EXPECT_EQ(DesktopImage::sizeOf(*at(list, 0).icon()), (CGSize{29, 29}));
    EXPECT_TRUE(at(list, 1).icon());
    EXPECT_FALSE(at(list, 2).icon());
    EXPECT_FALSE(at(list, 3).icon());
    EXPECT_FALSE(at(list, 4).icon());
}
