#include "ScreenReport.h"

#include "WholeProgram.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace {

class ScreenReportTest : public testing::Test {
protected:
    void writeList(const std::string& items) {
        program.device().write(std::string(EntryList::folder) + "/plain.plist",
                               "<plist version=\"1.0\"><dict><key>items</key><array>" + items +
                                   "</array></dict></plist>");
    }

    /// The row of that number on the page of the list.
    [[nodiscard]] QJsonObject rowOnPage(int number) {
        program.done("open plain");
        program.done("settle");
        return program.done("screen").value("rows").toArray().at(number).toObject();
    }

    WholeProgram program;
};

} // namespace

TEST_F(ScreenReportTest, TheHomeScreenHasNoPage) {
    const auto screen = program.done("screen");
    EXPECT_EQ(screen.value("app"), "home");
    for (const auto* const member : {"page", "title", "navigation"})
        EXPECT_TRUE(screen.value(member).isNull()) << member;
    EXPECT_EQ(screen.value("rows"), QJsonArray());
}

TEST_F(ScreenReportTest, APageIsToldOfByItsClassTitleAndBar) {
    program.done("open");
    program.done("settle");
    const auto screen = program.done("screen");
    EXPECT_EQ(screen.value("page"), "cxRootListController");
    EXPECT_EQ(screen.value("navigation")["titleView"], "GlintImageSwitch");
    const auto gear = screen.value("navigation")["right"].toArray().at(0).toObject();
    EXPECT_EQ(gear.value("symbol"), "gear.badge");
    EXPECT_EQ(gear.value("menu").toArray().size(), 2);
    EXPECT_EQ(gear.value("menu").toArray().at(1)["destructive"], true);
}

TEST_F(ScreenReportTest, ARowIsToldOfWithItsValue) {
    writeList("<dict><key>cell</key><string>PSSwitchCell</string><key>label</key><string>On</string>"
              "<key>id</key><string>row</string><key>key</key><string>k</string><key>defaults</key>"
              "<string>com.example.plain</string><key>default</key><true/><key>enabled</key><false/></dict>");
    const auto row = rowOnPage(0);
    EXPECT_EQ(row.value("id"), "row");
    EXPECT_EQ(row.value("label"), "On");
    EXPECT_EQ(row.value("cell"), "PSSwitchCell");
    EXPECT_TRUE(row.value("cellClass").isNull());
    EXPECT_EQ(row.value("key"), "k");
    EXPECT_EQ(row.value("value"), true);
    EXPECT_EQ(row.value("enabled"), false);
    EXPECT_EQ(row.value("height"), 44);
    EXPECT_EQ(row.value("screenFrame").toArray().at(2), 390 - 2 * 16);
}

TEST_F(ScreenReportTest, ARowThatShowsAValueTellsOfIt) {
    program.done("tap Settings");
    program.done("settle");
    program.done("tap About");
    program.done("settle");
    const auto rows = program.done("screen").value("rows").toArray();
    EXPECT_EQ(rows.at(3)["label"], "Appearance");
    EXPECT_EQ(rows.at(3)["value"], "Light");
    EXPECT_TRUE(rows.at(0)["value"].isNull());
}

TEST_F(ScreenReportTest, ARowWithAGetterTellsOfWhatThatAnswers) {
    writeList("<dict><key>cell</key><string>PSLinkCell</string><key>get</key>"
              "<string>readPreferenceValue:</string><key>default</key><string>so</string></dict>");
    EXPECT_EQ(rowOnPage(0).value("value"), "so");
}

TEST_F(ScreenReportTest, TheHeadOfAGroupIsTappedByItsLabelAndByWhatItShows) {
    writeList("<dict><key>cell</key><string>PSGroupCell</string><key>label</key><string>Rows</string></dict>"
              "<dict><key>cell</key><string>PSStaticTextCell</string><key>label</key><string>a</string>"
              "</dict>");
    EXPECT_EQ(rowOnPage(0).value("label"), "Rows");
    EXPECT_EQ(program.done("tap Rows").value("class"), "UILabel");
    EXPECT_EQ(program.done("tap ROWS").value("class"), "UILabel");
}

TEST_F(ScreenReportTest, ARowWithoutAKeyHasNoneAndNoValue) {
    writeList("<dict><key>cell</key><string>PSStaticTextCell</string><key>cellClass</key>"
              "<string>NoSuchCell</string></dict>");
    const auto row = rowOnPage(0);
    EXPECT_EQ(row.value("id"), "");
    EXPECT_TRUE(row.value("key").isNull());
    EXPECT_TRUE(row.value("value").isNull());
    EXPECT_EQ(row.value("cellClass"), "NoSuchCell");
}

TEST_F(ScreenReportTest, AnyTextIsToldOfInOneLine) {
    writeList("<dict><key>cell</key><string>PSStaticTextCell</string><key>label</key>"
              "<string>a\nb \"c\" \xe2\x80\xa8 \xf0\x9f\x98\x80</string></dict>");
    EXPECT_EQ(rowOnPage(0).value("label"), QString::fromUtf8("a\nb \"c\" \xe2\x80\xa8 \xf0\x9f\x98\x80"));
}

TEST_F(ScreenReportTest, APageWithoutRowsHasNone) {
    writeList("<integer>1</integer><string/>");
    program.done("open plain");
    program.done("settle");
    const auto screen = program.done("screen");
    EXPECT_EQ(screen.value("title"), "plain");
    EXPECT_EQ(screen.value("rows"), QJsonArray());
}

TEST_F(ScreenReportTest, AMenuIsPresentedWithItsRows) {
    program.openPane();
    program.done("tap gear.badge");
    program.done("settle");
    const auto presented = program.done("screen").value("presented").toArray();
    ASSERT_EQ(presented.size(), 1);
    EXPECT_EQ(presented[0]["kind"], "menu");
    const auto actions = presented[0]["actions"].toArray();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]["symbol"], "gear.badge.checkmark");
    EXPECT_EQ(actions[0]["style"], "default");
    EXPECT_EQ(actions[1]["style"], "destructive");
    EXPECT_EQ(actions[1]["enabled"], true);
    EXPECT_GT(actions[1]["screenFrame"].toArray().at(1).toDouble(),
              actions[0]["screenFrame"].toArray().at(1).toDouble());
}
