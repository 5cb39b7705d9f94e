// The pane where the device's language is read from right to left, which the pane's own texts are not in.

#include "WholeProgram.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <initializer_list>
#include <string>
#include <utility>

namespace {

/// On a phone.
class RightToLeftSession {
public:
    explicit RightToLeftSession(const Screen::Options& options = {}, const std::string& locale = "ar_EG")
        : program(options, {.locale = locale}) {}

    void give(std::initializer_list<std::string> lines) {
        for (const auto& line : lines) {
            program.done(line);
            program.done("settle");
        }
    }

    /// Of the first view of a class, as x and the right edge on the screen.
    [[nodiscard]] std::pair<double, double> sidesOf(const std::string& className) {
        const auto views = program.done("views " + className).value("views").toArray();
        const auto frame = views.at(0).toObject().value("screenFrame").toArray();
        return {frame[0].toDouble(), frame[0].toDouble() + frame[2].toDouble()};
    }

    [[nodiscard]] QJsonValue page() { return program.done("screen").value("page"); }

    WholeProgram program;
};

} // namespace

TEST(RightToLeftSessionTest, TheSystemsOwnWordsAreInTheDevicesLanguage) {
    RightToLeftSession arabic;
    arabic.give({"tap الإعدادات"});
    EXPECT_EQ(arabic.program.done("screen").value("title"), "الإعدادات");
    arabic.give({"tap حول"});
    EXPECT_EQ(arabic.page(), "AboutPage");
}

TEST(RightToLeftSessionTest, GermanIsReadFromLeftToRight) {
    RightToLeftSession german({}, "de_DE");
    german.give({"tap Einstellungen"});
    EXPECT_EQ(german.program.done("screen").value("title"), "Einstellungen");
    german.give({"tap Corvex", "swipe-down"});
    EXPECT_EQ(german.sidesOf("BackButtonView").first, 0);
}

TEST(RightToLeftSessionTest, ThePanesPagesAreMirrored) {
    RightToLeftSession session;
    session.program.openPane();
    EXPECT_EQ(session.sidesOf("BackButtonView").second, 390);
    EXPECT_LT(session.sidesOf("BarButtonView").second, 60) << "the gear";
    const auto buttons = session.program.done("views TweakButton").value("views").toArray();
    const auto left = [&buttons](int index) {
        return buttons[index].toObject().value("screenFrame").toArray()[0].toDouble();
    };
    EXPECT_GT(left(0), left(1));
    EXPECT_GT(left(1), left(2));
    session.give({"tap Banner"});
    EXPECT_EQ(session.sidesOf("UISwitch").first, 32);
    EXPECT_EQ(session.sidesOf("UISlider").second, 358);
    const auto slider = session.program.done("views UISlider").value("views").toArray()[0].toObject();
    EXPECT_EQ(slider.value("accessibility").toObject().value("value"), "١٢٠");
    session.give({"set kCustomTitleEnable true"});
    EXPECT_EQ(session.sidesOf("UITextField").first, 32);
    EXPECT_LT(session.sidesOf("UITextField").second, 330) << "where its title begins";
    session.give({"back"});
    EXPECT_EQ(session.page(), "cxRootListController");
}

TEST(RightToLeftSessionTest, TheHomeScreenAndWhatIsNewBeginAtTheRight) {
    RightToLeftSession session;
    const auto icon = session.program.done("tap الإعدادات").value("screenFrame").toArray();
    EXPECT_EQ(icon[0].toDouble() + icon[2].toDouble(), 390 - 27);
    session.program.done("settle");
    session.give({"tap Corvex"});
    const auto items = session.program.done("views OBBulletedListItem").value("views").toArray();
    ASSERT_FALSE(items.isEmpty());
    const auto item = items[0].toObject();
    const auto parts = item.value("subviews").toArray();
    const auto frame = [&parts](int index) { return parts[index].toObject().value("frame").toArray(); };
    EXPECT_EQ(frame(0)[0].toDouble() + frame(0)[2].toDouble(), item.value("frame").toArray()[2].toDouble());
    EXPECT_EQ(frame(1)[0].toDouble(), 0);
}

TEST(RightToLeftSessionTest, TheFilesHeadAndItsButtonAreMirrored) {
    RightToLeftSession session;
    session.program.openPane();
    session.give({"tap Backups", "tap \"Create Backup\"", "tap \"Create Backup\" #2", "type Mine",
                  "tap Create", "tap OK", "tap \"Show Backups\"", "tap Mine.tar", "tap Share"});
    const auto close = session.program.done("views ShareHeaderView").value("views").toArray()[0].toObject();
    const auto parts = close.value("subviews").toArray();
    EXPECT_EQ(parts.last().toObject().value("frame").toArray()[0], 16);
    const auto symbol = parts.first().toObject().value("frame").toArray();
    EXPECT_EQ(symbol[0].toDouble() + symbol[2].toDouble(), 390 - 16);
}

TEST(RightToLeftSessionTest, AFingerFromTheRightEdgeGoesBack) {
    RightToLeftSession session;
    session.program.openPane();
    session.give(
        {"tap Banner", "touch down 385 400", "touch move 300 400", "touch move 100 400", "touch up 100 400"});
    EXPECT_EQ(session.page(), "cxRootListController");
}

TEST(RightToLeftSessionTest, ATabletsListIsAtTheRight) {
    RightToLeftSession session({.idiom = Idiom::Pad, .scale = 2});
    session.program.openPane();
    const auto rows = session.program.done("views UITableView").value("views").toArray();
    ASSERT_EQ(rows.size(), 2);
    const auto frame = [&rows](int index) { return rows[index].toObject().value("screenFrame").toArray(); };
    EXPECT_EQ(frame(0)[0].toDouble() + frame(0)[2].toDouble(), 820);
    EXPECT_EQ(frame(1)[0].toDouble(), 0);
}
