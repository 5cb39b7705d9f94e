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
    session.give({"back"});
    EXPECT_EQ(session.page(), "cxRootListController");
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
