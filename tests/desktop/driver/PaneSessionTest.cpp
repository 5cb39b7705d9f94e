// The pane from its first opening to the end of Settings, as somebody drives it from outside.

#include "Foundation/NSDictionary.h"
#include "WholeProgram.h"
#include "navigation/UINavigationControllerPeer.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <filesystem>

namespace {

constexpr auto preferences = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
constexpr auto bundle = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";

class PaneSessionTest : public testing::Test {
protected:
    void give(std::initializer_list<const char*> lines) {
        for (const auto* const line : lines)
            program.done(line);
    }

    [[nodiscard]] QJsonValue screen(const char* member) { return program.done("screen").value(member); }

    /// What is presented topmost; an object without members when nothing is.
    [[nodiscard]] QJsonObject presented() {
        const auto all = screen("presented").toArray();
        return all.isEmpty() ? QJsonObject() : all.last().toObject();
    }

    /// What was logged, but for the sizes of the icon buttons' rows, which are meant to be too small for all
    /// of it.
    [[nodiscard]] QJsonArray logged() {
        QJsonArray kept;
        for (const auto& line : events("log")) {
            if (line !=
                "Unable to simultaneously satisfy constraints of TweakCustomCell; some of them are left out.")
                kept.append(line);
        }
        return kept;
    }

    /// Sets the value of a row of a page that the root page opens, and goes back there.
    void setOnPage(const std::string& button, const std::string& value) {
        program.done("tap " + button);
        program.done("settle");
        program.done("set " + value);
        give({"back", "settle"});
    }

    [[nodiscard]] QJsonArray events(const char* kind) { return program.done(kind).value("events").toArray(); }

    [[nodiscard]] std::string marker() const {
        const auto kept = dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary());
        const auto found = kept.find("LastVersionPopupShown");
        return found == kept.end() ? "(none)" : found->second.description();
    }

    [[nodiscard]] QJsonValue valueOf(const QString& rowId) {
        for (const auto& row : screen("rows").toArray()) {
            if (row.toObject()["id"] == rowId)
                return row.toObject()["value"];
        }
        ADD_FAILURE() << "there is no row " << rowId.toStdString();
        return {};
    }

    void keepMarker(const std::string& version) {
        program.device().write(preferences,
                               "<plist version=\"1.0\"><dict><key>LastVersionPopupShown</key><string>" +
                                   version + "</string></dict></plist>");
    }

    [[nodiscard]] QJsonValue masterSwitch() {
        return program.done("views GlintImageSwitch").value("views").toArray().at(0);
    }

    [[nodiscard]] bool isMasterSwitchOn() { return masterSwitch()["properties"]["isOn"].toBool(); }

    /// With a finger.
    void flipMasterSwitch() {
        const auto place = masterSwitch()["screenFrame"];
        const auto x = place[0].toDouble() + place[2].toDouble() / 2;
        const auto y = place[1].toDouble() + place[3].toDouble() / 2;
        const auto at = " " + std::to_string(x) + " " + std::to_string(y);
        program.done("touch down" + at);
        program.done("touch up" + at);
    }

    /// Once what was tapped has closed, Settings leaves; it ends half a second later and not before.
    void expectTheEndHalfASecondAfterLeaving() {
        while (screen("app") == "Settings")
            program.done("advance 0.001");
        program.done("advance 0.498");
        EXPECT_TRUE(isLoaded());
        EXPECT_NE(program.shell().settings(), nullptr);
        program.done("advance 0.002");
        EXPECT_FALSE(isLoaded());
        EXPECT_EQ(program.shell().settings(), nullptr);
    }

    /// How far the list of the sheet is scrolled.
    [[nodiscard]] double sheetOffset() {
        const auto scrolls = program.done("views UIScrollView").value("views").toArray();
        return scrolls.last()["properties"]["contentOffset"][1].toDouble(-1);
    }

    /// Whether code of the pane is in the program.
    [[nodiscard]] bool isLoaded() {
        return program.done("live cxRootListController").value("known").toBool();
    }

    WholeProgram program;
};

} // namespace

TEST_F(PaneSessionTest, AFreshDeviceShowsWhatIsNewOnceAndNeverAgain) {
    EXPECT_EQ(marker(), "(none)");
    program.done("open");
    EXPECT_EQ(marker(), "3.0.1") << "as soon as it is presented";
    program.done("settle");
    const auto sheet = presented();
    EXPECT_EQ(sheet["kind"], "sheet");
    EXPECT_EQ(sheet["class"], "OBWelcomeController");
    EXPECT_EQ(sheet["title"], "Corvex");
    EXPECT_EQ(sheet["detail"], "3.0.1");
    EXPECT_EQ(sheet["style"], "pageSheet");
    EXPECT_EQ(sheet["symbol"], QJsonValue());
    EXPECT_EQ(sheet["swipeDismissable"], true);
    EXPECT_EQ(sheet["actions"], QJsonArray());
    const auto items = sheet["items"].toArray();
    ASSERT_EQ(items.size(), 6);
    for (const auto& item : items)
        EXPECT_EQ(item.toObject()["symbol"], "checkmark.circle.fill");
    EXPECT_EQ(items[0]["title"], "New Backup & Restore System");
    EXPECT_EQ(items[5]["description"], "Corvex now supports Roothide");
    EXPECT_EQ(program.done("swipe-down").value("dismissed"), true);
    program.done("settle");
    EXPECT_EQ(screen("presented"), QJsonArray());
    give({"relaunch", "settle", "open", "settle"});
    EXPECT_EQ(screen("presented"), QJsonArray());
    EXPECT_EQ(logged(), QJsonArray());
}

TEST_F(PaneSessionTest, ASwipeDownTakesASheetAwayWhoseListIsScrolled) {
    give({"open", "settle", "touch down 195 600", "touch move 195 560", "touch move 195 500", "advance 0.5",
          "touch up 195 500", "settle"});
    EXPECT_GT(sheetOffset(), 0);
    EXPECT_EQ(program.done("swipe-down").value("dismissed"), true);
    EXPECT_EQ(sheetOffset(), 0);
    program.done("settle");
    EXPECT_EQ(screen("presented"), QJsonArray());
}

TEST_F(PaneSessionTest, BackIsRefusedWhileAFingerDrawsThePageAway) {
    program.openPane();
    give({"touch down 2 400", "touch move 60 400", "touch move 100 400"});
    EXPECT_EQ(program.ask("back").value("error"), "a finger is drawing the page away");
    give({"touch move 20 400", "advance 1", "touch up 20 400", "settle"});
    EXPECT_EQ(screen("page"), "cxRootListController") << "nothing was left to do for it";
    EXPECT_EQ(program.done("back").value("title"), "Settings");
}

TEST_F(PaneSessionTest, TheMasterSwitchIsCalledAsThePageInItsBar) {
    program.openPane();
    const auto told = [this] {
        return program.done("views GlintImageSwitch").value("views").toArray().at(0)["accessibility"];
    };
    EXPECT_EQ(told()["label"], "Corvex");
    EXPECT_EQ(told()["value"], "0");
    program.done("tap Corvex");
    EXPECT_EQ(told()["value"], "1");
}

TEST_F(PaneSessionTest, BackWhileThePageComesInWaitsForIt) {
    program.openPane();
    give({"back", "settle", "tap Corvex", "advance 0.1"});
    EXPECT_EQ(program.done("back").value("title"), "Corvex");
    EXPECT_EQ(screen("page"), "cxRootListController");
    program.done("settle");
    EXPECT_EQ(screen("page"), "SettingsRootPage");
}

TEST_F(PaneSessionTest, WhatKeepsNoValueCannotBeSet) {
    program.openPane();
    give({"tap General", "settle"});
    const auto head = screen("rows").toArray().at(0).toObject();
    ASSERT_EQ(head["cell"], "PSGroupCell");
    const auto id = head["id"].toString().toStdString();
    EXPECT_EQ(program.ask("set \"" + id + "\" true").value("error"), "the row has no value");
    give({"back", "settle", "back", "settle"});
    EXPECT_EQ(program.ask("set corvexPrefs true").value("error"), "the row has no value");
}

TEST_F(PaneSessionTest, AnotherVersionsMarkerIsReplaced) {
    for (const auto* const version : {"3.0.0", "3.0.2", "", "3.0.1 "}) {
        keepMarker(version);
        give({"relaunch", "open", "settle"});
        EXPECT_EQ(presented()["title"], "Corvex") << version;
        EXPECT_EQ(marker(), "3.0.1");
    }
    keepMarker("3.0.1");
    give({"relaunch", "open", "settle"});
    EXPECT_EQ(screen("presented"), QJsonArray());
}

TEST_F(PaneSessionTest, WithoutItsIconWhatIsNewHasAGear) {
    for (const auto* const name : {"/icon.png", "/icon@2x.png", "/icon@3x.png"})
        ASSERT_TRUE(std::filesystem::remove(program.device().hostPath(std::string(bundle) + name)));
    give({"open", "settle"});
    EXPECT_EQ(presented()["symbol"], "gear");
}

TEST_F(PaneSessionTest, ApplyLeavesAtOnceAndEndsSettingsHalfASecondLater) {
    program.openPane();
    give({"tap gear.badge", "settle", "tap Apply"});
    // The menu closes first; its action runs then.
    expectTheEndHalfASecondAfterLeaving();
    EXPECT_EQ(screen("app"), "home");
    EXPECT_EQ(program.done("live UIViewController").value("count").toInt(-1), 0);
    EXPECT_EQ(marker(), "3.0.1") << "nothing is reset";
}

TEST_F(PaneSessionTest, TheHomeScreensIconStartsSettingsAfreshWithTheValuesOnDisk) {
    program.openPane();
    setOnPage("General", "kcircleIcons true");
    give({"tap gear.badge", "settle", "tap Apply", "settle"});
    EXPECT_FALSE(isLoaded());
    program.device().write(preferences, "<plist version=\"1.0\"><dict><key>LastVersionPopupShown</key>"
                                        "<string>3.0.1</string><key>kEnabled</key><true/></dict></plist>");
    give({"tap Settings", "settle"});
    EXPECT_EQ(screen("page"), "SettingsRootPage");
    give({"tap Corvex", "settle"});
    EXPECT_EQ(screen("presented"), QJsonArray());
    EXPECT_TRUE(isMasterSwitchOn());
    give({"tap General", "settle"});
    EXPECT_NE(valueOf("kcircleIcons"), true) << "as it is on disk by now";
}

TEST_F(PaneSessionTest, ASecondTapOnApplyFindsNothingToTap) {
    program.openPane();
    give({"tap gear.badge", "settle", "tap Apply"});
    EXPECT_EQ(program.ask("tap Apply").value("ok"), false);
    program.done("settle");
    EXPECT_EQ(program.shell().settings(), nullptr);
    give({"tap Settings", "settle", "advance 5"});
    EXPECT_NE(program.shell().settings(), nullptr) << "it was ended once";
}

TEST_F(PaneSessionTest, ApplyEndsSettingsWhileThePageStillMoves) {
    program.openPane();
    flipMasterSwitch();
    program.done("advance 0.02");
    give({"tap gear.badge", "advance 0.5", "tap Apply", "settle"});
    EXPECT_EQ(program.shell().settings(), nullptr);
    EXPECT_FALSE(isLoaded());
    EXPECT_TRUE(dictionaryWithContentsOfFile(preferences)->at("kEnabled").boolValue());
}

TEST_F(PaneSessionTest, ResetAsksFirstAndCancelKeepsEverything) {
    program.openPane();
    setOnPage("General", "kcircleIcons true");
    static_cast<void>(events("sounds"));
    give({"tap gear.badge", "settle", "tap \"Reset Settings\"", "settle"});
    EXPECT_EQ(events("sounds"), QJsonArray{1519});
    const auto alert = presented();
    EXPECT_EQ(alert["kind"], "alert");
    EXPECT_EQ(alert["title"], "Reset CX Settings");
    EXPECT_EQ(alert["detail"], "Do you want to reset settings?");
    const auto actions = alert["actions"].toArray();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]["title"], "Cancel");
    EXPECT_EQ(actions[0]["style"], "cancel");
    EXPECT_EQ(actions[1]["title"], "Confirm");
    EXPECT_EQ(actions[1]["style"], "destructive");
    EXPECT_EQ(program.ask("swipe-down").value("ok"), false) << "an alert is no sheet";
    give({"tap Cancel", "settle", "advance 2"});
    EXPECT_EQ(screen("presented"), QJsonArray());
    EXPECT_EQ(screen("app"), "Settings");
    EXPECT_TRUE(dictionaryWithContentsOfFile(preferences)->at("kcircleIcons").boolValue());
}

TEST_F(PaneSessionTest, AConfirmedResetWipesTheValuesAndEndsSettings) {
    program.openPane();
    setOnPage("General", "kcircleIcons true");
    give({"tap gear.badge", "settle", "tap \"Reset Settings\"", "settle", "tap Confirm", "settle"});
    const auto log = logged();
    ASSERT_EQ(log.size(), 4);
    EXPECT_TRUE(
        log[0].toString().startsWith("Error removing file at path "
                                     "/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist: "))
        << log[0].toString().toStdString();
    EXPECT_TRUE(log[3].toString().contains("customBackgroundImage-IMG"));
    EXPECT_EQ(dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary()),
              PropertyList::Dictionary());
    EXPECT_EQ(screen("app"), "home");
    EXPECT_EQ(program.shell().settings(), nullptr);
    EXPECT_FALSE(isLoaded());
    give({"open", "settle"});
    EXPECT_EQ(presented()["title"], "Corvex") << "what is new is shown again";
}

TEST_F(PaneSessionTest, AConfirmedResetEndsSettingsHalfASecondAfterItHasLeft) {
    program.openPane();
    give({"tap gear.badge", "settle", "tap \"Reset Settings\"", "settle", "tap Confirm"});
    expectTheEndHalfASecondAfterLeaving();
    EXPECT_EQ(events("notifications"), QJsonArray());
}

TEST_F(PaneSessionTest, AfterAResetThePaneShowsWhatItShowedAtFirst) {
    program.openPane();
    give({"tap General", "settle"});
    const auto rowsAtFirst = screen("rows");
    ASSERT_FALSE(rowsAtFirst.toArray().isEmpty());
    give({"set kcircleIcons true", "settle"});
    ASSERT_NE(screen("rows"), rowsAtFirst);
    give({"back", "settle"});
    flipMasterSwitch();
    program.done("settle");
    ASSERT_TRUE(isMasterSwitchOn());
    give({"tap gear.badge", "settle", "tap \"Reset Settings\"", "settle", "tap Confirm", "settle", "open",
          "settle", "swipe-down", "settle"});
    EXPECT_FALSE(isMasterSwitchOn());
    give({"tap General", "settle"});
    EXPECT_EQ(screen("rows"), rowsAtFirst);
}

TEST_F(PaneSessionTest, ASheetThatComesInIsInTheWayOfTheGear) {
    give({"open", "advance 0.1"});
    EXPECT_EQ(program.ask("tap gear.badge").value("ok"), false);
    program.done("settle");
    EXPECT_EQ(presented()["kind"], "sheet");
}

TEST_F(PaneSessionTest, AResetWhileASheetComesInIsNotAskedForASecondTime) {
    program.done("open");
    program.done("advance 0.1");
    const auto page = program.shell().settings()->pages();
    const auto before = presented().value("class");
    peerOf<UINavigationControllerPeer>(*page).top()->performSelector("resetSettings");
    const auto log = logged();
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].toString().startsWith("Attempt to present <UIAlertController: "));
    program.done("settle");
    EXPECT_EQ(presented()["class"], before);
    EXPECT_EQ(marker(), "3.0.1");
}

TEST_F(PaneSessionTest, WithoutTheServiceSettingsIsOnlyLeft) {
    const auto service = program.device().hostPath(
        "/System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices");
    ASSERT_TRUE(std::filesystem::remove(service));
    program.openPane();
    give({"tap gear.badge", "settle", "tap Apply", "settle", "advance 10"});
    EXPECT_EQ(screen("app"), "home");
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(logged(), QJsonArray());
    give({"tap Settings", "settle"});
    EXPECT_EQ(screen("page"), "cxRootListController") << "it is where it was left";
}
