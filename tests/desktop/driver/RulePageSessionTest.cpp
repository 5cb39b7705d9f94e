// A page that hides rows by rule, as somebody drives it from outside.

#include "Foundation/NSDictionary.h"
#include "WholeProgram.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace {

constexpr auto preferences = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
constexpr auto bundleFolder = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/";

std::string text(const std::string& key, const std::string& text) {
    return "<key>" + key + "</key><string>" + text + "</string>";
}

std::string item(const std::string& cell, const std::string& label, const std::string& more = {}) {
    return "<dict>" + text("cell", cell) + text("id", label) + text("label", label) + more + "</dict>";
}

std::string switchItem(const std::string& label, const std::string& more = {}) {
    return item("PSSwitchCell", label, text("key", label) + text("defaults", "com.orvel.corvexprefs") + more);
}

std::string ruledItem(const std::string& label, const std::string& rule) {
    return item("PSStaticTextCell", label, text("dynamicRule", rule));
}

class RulePageSessionTest : public testing::Test {
protected:
    /// The page of the list "Banner" with those items, in front of the pane's first page.
    void open(const std::string& items, const std::string& kept = {}) {
        writeList("Root", item("PSLinkCell", "Banner", text("detail", "cxBannerController")));
        writeList("Banner", items);
        program.device().write(preferences, R"(<plist version="1.0"><dict>)" +
                                                text("LastVersionPopupShown", "3.0.1") + kept +
                                                "</dict></plist>");
        for (const auto* const line : {"open", "settle", "tap Banner", "settle"})
            program.done(line);
        EXPECT_EQ(program.done("screen").value("page"), "cxBannerController");
    }

    void writeList(const std::string& name, const std::string& items) {
        program.device().write(bundleFolder + name + ".plist",
                               R"(<plist version="1.0"><dict>)" + text("title", name) +
                                   "<key>items</key><array>" + items + "</array></dict></plist>");
    }

    [[nodiscard]] QJsonObject row(const char* id) {
        for (const auto& row : program.done("screen").value("rows").toArray()) {
            if (row.toObject()["id"] == id)
                return row.toObject();
        }
        ADD_FAILURE() << "there is no row " << id;
        return {};
    }

    [[nodiscard]] double heightOf(const char* id) { return row(id)["height"].toDouble(-1); }

    [[nodiscard]] double topOf(const char* id) { return row(id)["screenFrame"][1].toDouble(-1); }

    /// How many cells there are to see.
    [[nodiscard]] std::size_t cells() {
        auto shown = std::size_t{0};
        for (const auto& view : program.done("views PSTableCell").value("views").toArray())
            shown += view.toObject()["hidden"].toBool() ? 0U : 1U;
        return shown;
    }

    WholeProgram program;
};

} // namespace

TEST_F(RulePageSessionTest, ATapOfTheSwitchShowsAndHidesItsRow) {
    open(switchItem("Master", "<key>default</key><false/>") + ruledItem("Detail", "Master, on, show") +
         switchItem("Below"));
    EXPECT_EQ(heightOf("Detail"), 0);
    EXPECT_EQ(cells(), 2U);
    const auto top = topOf("Below");
    EXPECT_FALSE(program.ask("tap Detail")["ok"].toBool());
    program.done("tap Master");
    program.done("settle");
    EXPECT_EQ(heightOf("Detail"), 44);
    EXPECT_EQ(topOf("Below"), top + 44);
    EXPECT_EQ(cells(), 3U);
    EXPECT_EQ(row("Master")["value"], true);
    program.done("tap Master");
    program.done("settle");
    EXPECT_EQ(heightOf("Detail"), 0);
    EXPECT_EQ(topOf("Below"), top);
    EXPECT_EQ(cells(), 2U);
    const auto kept = dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary());
    EXPECT_EQ(kept.at("Master"), PropertyList(false));
}

TEST_F(RulePageSessionTest, SettingTheRowsValueDoesTheSame) {
    open(switchItem("Master") + ruledItem("Detail", "Master, on, show"));
    EXPECT_EQ(heightOf("Detail"), 44);
    program.done("set Master false");
    EXPECT_EQ(heightOf("Detail"), 0);
    program.done("set Master \"0\"");
    EXPECT_EQ(heightOf("Detail"), 44) << "a text is no number";
    program.done("set Master 0");
    EXPECT_EQ(heightOf("Detail"), 0);
    program.done("set Master 1");
    EXPECT_EQ(heightOf("Detail"), 44);
}

TEST_F(RulePageSessionTest, ARuleOfTwoPartsOrWithoutSpacesHidesNothing) {
    open(switchItem("Master") + ruledItem("Two", "Master, on") + ruledItem("Tight", "Master,on,show"),
         "<key>Master</key><false/>");
    EXPECT_EQ(row("Master")["value"], false);
    EXPECT_EQ(heightOf("Two"), 44);
    EXPECT_EQ(heightOf("Tight"), 44);
}

TEST_F(RulePageSessionTest, AStringHidesNothing) {
    open(switchItem("Master") + ruledItem("Detail", "Master, on, show"),
         "<key>Master</key><string>0</string>");
    EXPECT_EQ(heightOf("Detail"), 44);
}

TEST_F(RulePageSessionTest, OfTwoRowsOnOneSwitchTheSecondFollowsIt) {
    open(switchItem("Master") + ruledItem("First", "Master, on, show") +
         ruledItem("Second", "Master, on, show"));
    program.done("set Master false");
    EXPECT_EQ(heightOf("First"), 44);
    EXPECT_EQ(heightOf("Second"), 0);
}

TEST_F(RulePageSessionTest, ASwitchThatIsFlippedBackInMidSlideTurnsTheRowsRound) {
    open(switchItem("Master", "<key>default</key><true/>") + ruledItem("Detail", "Master, on, show") +
         switchItem("Below"));
    program.done("tap Master");
    program.done("advance 0.15");
    program.done("tap Master");
    EXPECT_EQ(heightOf("Detail"), 44);
    program.done("settle");
    EXPECT_EQ(heightOf("Detail"), 44);
    EXPECT_EQ(cells(), 3U);
}
