#include "ChildProgram.h"
#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

/// The program, driven on a device root that is empty at first.
class DrivenProgram {
public:
    explicit DrivenProgram(const std::string& root, std::vector<std::string> options = {})
        : program_(PROGRAM, argumentsFor(root, std::move(options))) {}

    [[nodiscard]] std::string askRaw(const std::string& line) { return program_.ask(line); }

    [[nodiscard]] QJsonObject ask(const std::string& line) {
        return QJsonDocument::fromJson(QByteArray::fromStdString(askRaw(line))).object();
    }

    /// The same for a command that must be possible.
    QJsonObject done(const std::string& line) {
        auto answer = ask(line);
        EXPECT_TRUE(answer.value("ok").toBool())
            << line << ": " << answer.value("error").toString().toStdString();
        return answer;
    }

    /// Opens the pane on a device root where it never was, and takes what is new in it away.
    void openPane() {
        for (const auto* const line : {"open", "settle", "swipe-down", "settle"})
            done(line);
    }

    /// From the root page to the page that a button opens.
    void openPage(const std::string& button) {
        done("tap " + button);
        done("settle");
    }

    /// Where the middle of the only view of a class is, as arguments of a touch.
    [[nodiscard]] std::string middleOf(const std::string& viewClass) {
        const auto views = done("views " + viewClass).value("views").toArray();
        EXPECT_EQ(views.size(), 1) << viewClass;
        const auto frame = views.at(0)["screenFrame"].toArray();
        return std::to_string(frame[0].toDouble() + frame[2].toDouble() / 2) + " " +
               std::to_string(frame[1].toDouble() + frame[3].toDouble() / 2);
    }

    void tapView(const std::string& viewClass) {
        const auto place = middleOf(viewClass);
        done("touch down " + place);
        done("touch up " + place);
    }

    /// \returns its exit code
    int end() {
        done("quit");
        return exitCodeAtEndOfInput();
    }

    int exitCodeAtEndOfInput() {
        program_.endInput();
        const auto status = program_.wait();
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// A command whose answer nobody reads. \returns its exit code
    int exitCodeAfterUnread(const std::string& line) {
        program_.endOutput();
        program_.sendLine(line);
        return exitCodeAtEndOfInput();
    }

private:
    static std::vector<std::string> argumentsFor(const std::string& root, std::vector<std::string> options) {
        options.insert(options.begin(), {"--drive", "--device-root", root, "--now", "2026-11-16T03:12:00Z"});
        return options;
    }

    ChildProgram program_;
};

int exitCodeOf(const std::vector<std::string>& arguments, const std::string& path = PROGRAM) {
    ChildProgram program(path, arguments);
    const auto status = program.wait();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The rows of the page that are switches, by the list's order.
QJsonArray switchesOf(const QJsonArray& rows) {
    QJsonArray switches;
    for (const auto& row : rows) {
        if (row.toObject().value("cell").toString() == "PSSwitchCell")
            switches.append(row);
    }
    return switches;
}

QJsonObject lastSwitch(const QJsonArray& rows) {
    return switchesOf(rows).last().toObject();
}

std::string rowToSet(DrivenProgram& program) {
    const auto rows = switchesOf(program.done("screen").value("rows").toArray());
    return rows.first()["id"].toString().toStdString();
}

QJsonValue valueOf(DrivenProgram& program, const std::string& id) {
    for (const auto& row : program.done("screen").value("rows").toArray()) {
        if (row.toObject().value("id").toString().toStdString() == id)
            return row.toObject().value("value");
    }
    return QJsonValue::Undefined;
}

class ProgramTest : public testing::Test {
protected:
    TemporaryFolder folder_;
    const std::string root_ = folder_.path() + "/device";
};

TEST_F(ProgramTest, InstallsIntoADeviceRootThatIsNotThere) {
    DrivenProgram program(root_);
    EXPECT_EQ(program.done("screen").value("app").toString(), "home");
    EXPECT_TRUE(
        std::filesystem::exists(root_ + "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/corvexPrefs"));
    EXPECT_EQ(program.end(), 0);
}

TEST_F(ProgramTest, GoesFromTheHomeScreenToThePane) {
    DrivenProgram program(root_);
    program.done("tap Settings");
    program.done("settle");
    EXPECT_EQ(program.done("screen").value("app").toString(), "Settings");
    program.done("tap Corvex");
    program.done("settle");
    const auto screen = program.done("screen");
    EXPECT_EQ(screen.value("page").toString(), "cxRootListController");
    EXPECT_EQ(screen.value("title").toString(), "Corvex");
    EXPECT_EQ(screen.value("navigation")["titleView"].toString(), "GlintImageSwitch");
    EXPECT_FALSE(screen.value("rows").toArray().isEmpty());
    EXPECT_EQ(program.end(), 0);
}

TEST_F(ProgramTest, OpensThePaneAndGoesBack) {
    DrivenProgram program(root_);
    EXPECT_EQ(program.done("open").value("title").toString(), "Corvex");
    program.done("settle");
    program.done("swipe-down");
    program.done("settle");
    EXPECT_EQ(program.done("back").value("title").toString(), "Settings");
    program.done("settle");
    EXPECT_EQ(program.ask("back").value("error").toString(), "the navigation bar has no back button");
    EXPECT_EQ(program.done("open Corvex").value("title").toString(), "Corvex");
    EXPECT_FALSE(program.ask("open Nonsense").value("ok").toBool(true));
}

TEST_F(ProgramTest, TheGearOpensTheMenu) {
    DrivenProgram program(root_);
    program.openPane();
    program.tapView("BarButtonView");
    program.done("settle");
    const auto presented = program.done("screen").value("presented").toArray();
    ASSERT_EQ(presented.size(), 1);
    EXPECT_EQ(presented[0]["kind"].toString(), "menu");
    const auto actions = presented[0]["actions"].toArray();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]["title"].toString(), "Apply");
    EXPECT_EQ(actions[1]["title"].toString(), "Reset Settings");
    EXPECT_EQ(actions[1]["style"].toString(), "destructive");
}

TEST_F(ProgramTest, TheMasterSwitchIsRememberedByTheNextRun) {
    {
        DrivenProgram program(root_);
        program.openPane();
        const auto before = program.done("views GlintImageSwitch").value("views").toArray().at(0);
        EXPECT_FALSE(before["properties"]["isOn"].toBool(true));
        program.tapView("GlintImageSwitch");
        program.done("settle");
        const auto after = program.done("views GlintImageSwitch").value("views").toArray().at(0);
        EXPECT_TRUE(after["properties"]["isOn"].toBool());
        EXPECT_EQ(program.end(), 0);
    }
    DrivenProgram program(root_);
    program.done("open");
    program.done("settle");
    const auto views = program.done("views GlintImageSwitch").value("views").toArray();
    EXPECT_TRUE(views.at(0)["properties"]["isOn"].toBool());
}

TEST_F(ProgramTest, RelaunchStartsSettingsAfresh) {
    DrivenProgram program(root_);
    program.done("open");
    program.done("settle");
    program.done("relaunch");
    program.done("settle");
    EXPECT_EQ(program.done("screen").value("title").toString(), "Settings");
}

TEST_F(ProgramTest, TimeStandsStillUntilItIsMoved) {
    DrivenProgram program(root_);
    EXPECT_EQ(program.done("advance 0").value("now").toString(), "2026-11-16T03:12:00.000Z");
    EXPECT_EQ(program.done("advance 2.25").value("now").toString(), "2026-11-16T03:12:02.250Z");
}

TEST_F(ProgramTest, SnapshotsHaveThePixelsOfTheDevice) {
    for (const auto& [options, width, height] : {std::tuple(std::vector<std::string>{}, 1170, 2532),
                                                 {{"--idiom", "pad"}, 1640, 2360},
                                                 {{"--scale", "1"}, 390, 844}}) {
        DrivenProgram program(root_, options);
        const auto size = program.done("snapshot " + folder_.path() + "/picture.png").value("size").toArray();
        EXPECT_EQ(size, (QJsonArray{width, height}));
        EXPECT_GT(std::filesystem::file_size(folder_.path() + "/picture.png"), 1000U);
    }
}

/// What no command understands, and what none can do on the home screen.
std::vector<std::string> hostileLines() {
    return {"",
            "   ",
            "nonsense",
            "\xff\xfe",
            "tap \xc3",
            std::string("tap \0x", 6),
            "tap \"",
            "\"",
            "tap \"a\"b",
            "tap \"a",
            "tap \"\\",
            "tap \"\\x\"",
            "tap nothing",
            "tap \"\\ud800\"",
            "touch down nan nan",
            "touch down inf 1",
            "touch down 1e999 1",
            "touch down 1e308 1",
            "touch down 0x10 1",
            "touch down 1,5 1",
            "touch down \"\" 1",
            "touch down 1",
            "touch down 1 1 1",
            "touch sideways 1 1",
            "touch up 1 1",
            "advance -1",
            "advance 1e999",
            "advance 1e308",
            "advance 0x10",
            "advance 1,5",
            "advance +1",
            "advance \"\"",
            "advance",
            "views",
            "views Nonsense",
            "snapshot /nowhere/at/all.png",
            "snapshot \"\"",
            "set a",
            "set a {",
            "set kEnabled true",
            "url-handler filza maybe",
            "url-handler",
            "type hello",
            "key return",
            "pick /etc/passwd",
            "pick-cancel",
            "swipe-down",
            "open \"No Such Pane\"",
            "open ../../etc",
            "back",
            "QUIT",
            "quit now",
            std::string(1'000'000, 'x'),
            "tap \"" + std::string(1'000'000, 'y') + "\"",
            std::string(3'000'000, 'z'),
            "set a " + std::string(100'000, '[')};
}

TEST_F(ProgramTest, RefusesEachHostileLineInOneLineAndGoesOn) {
    DrivenProgram program(root_);
    for (const auto& line : hostileLines()) {
        const auto answer = program.ask(line);
        EXPECT_FALSE(answer.value("ok").toBool(true)) << line.substr(0, 40);
        EXPECT_FALSE(answer.value("error").toString().isEmpty()) << line.substr(0, 40);
        EXPECT_EQ(program.askRaw("advance 0"), R"({"ok":true,"now":"2026-11-16T03:12:00.000Z"})");
    }
    EXPECT_EQ(program.end(), 0);
}

TEST_F(ProgramTest, SetWritesValuesThroughThePageOnly) {
    DrivenProgram program(root_);
    program.openPane();
    program.openPage("General");
    const auto row = rowToSet(program);
    program.done("set " + row + " true");
    EXPECT_TRUE(valueOf(program, row).toBool());
    program.done("set " + row + " false");
    EXPECT_FALSE(valueOf(program, row).toBool(true));
    for (const auto* line : {"set nonsense 1", "set nonsense {"})
        EXPECT_FALSE(program.ask(line).value("ok").toBool(true));
    EXPECT_EQ(program.ask("set " + row + " 1 2").value("error").toString(), "the value is not JSON");
}

TEST_F(ProgramTest, TapOnARowsLabelFlipsItsSwitch) {
    DrivenProgram program(root_);
    program.openPane();
    program.openPage("General");
    const auto rows = program.done("screen").value("rows").toArray();
    const auto last = lastSwitch(rows);
    program.done("tap \"" + last["label"].toString().toStdString() + "\"");
    program.done("settle");
    EXPECT_TRUE(valueOf(program, last["id"].toString().toStdString()).toBool());
}

/// What docs/driving.md says of a session: each command after "> ", and its answer in the next line.
std::vector<std::pair<std::string, std::string>> documentedSession() {
    std::ifstream document(DRIVING_DOCUMENT);
    std::vector<std::pair<std::string, std::string>> session;
    for (std::string line; std::getline(document, line);) {
        if (!line.starts_with("> "))
            continue;
        session.emplace_back(line.substr(2), "");
        std::getline(document, session.back().second);
    }
    return session;
}

TEST_F(ProgramTest, TheDocumentsSessionIsTrue) {
    DrivenProgram program(root_);
    const auto session = documentedSession();
    ASSERT_GT(session.size(), 10U);
    for (const auto& [command, answer] : session)
        EXPECT_EQ(program.askRaw(command), answer) << command;
}

TEST_F(ProgramTest, UrlHandlersAndSoundsAreAnswered) {
    DrivenProgram program(root_);
    program.done("url-handler filza works");
    EXPECT_EQ(program.done("urls").value("events").toArray(), QJsonArray());
    EXPECT_EQ(program.done("sounds").value("events").toArray(), QJsonArray());
}

TEST_F(ProgramTest, DoesNotBeginWithoutTheFacesOfItsTexts) {
    const auto noFonts = folder_.path() + "/fonts.conf";
    const auto told = folder_.path() + "/told";
    std::ofstream(noFonts) << "<fontconfig></fontconfig>";
    for (const std::string mode : {"--drive ", ""}) {
        std::string command("QT_QPA_PLATFORM=offscreen FONTCONFIG_FILE=");
        command.append(noFonts).append(" timeout 60 " PROGRAM " ").append(mode);
        command.append("--device-root ").append(root_).append(" </dev/null 2>").append(told);
        EXPECT_EQ(exitCodeOf({"-c", command}, "/bin/sh"), 1) << mode;
        std::ifstream message(told);
        const std::string text(std::istreambuf_iterator<char>(message), {});
        EXPECT_NE(text.find("corvex-settings: the font families that texts are set in"), std::string::npos)
            << text;
    }
    EXPECT_FALSE(std::filesystem::exists(root_));
}

TEST_F(ProgramTest, EndsWithSuccessAtTheEndOfItsInput) {
    DrivenProgram program(root_);
    EXPECT_EQ(program.exitCodeAtEndOfInput(), 0);
}

TEST_F(ProgramTest, EndsQuietlyWhenNobodyReadsItsAnswers) {
    DrivenProgram program(root_);
    program.openPane();
    program.openPage("General");
    EXPECT_EQ(program.exitCodeAfterUnread("set kcircleIcons true"), 1);
    DrivenProgram next(root_);
    next.done("open");
    next.done("settle");
    next.openPage("General");
    EXPECT_TRUE(valueOf(next, "kcircleIcons").toBool()) << "what was done is kept";
}

TEST_F(ProgramTest, LinesMayEndAsTheyLike) {
    ChildProgram program(PROGRAM, {"--drive", "--device-root", root_, "--now", "2026-11-16T03:12:00Z"});
    const auto* const now = R"({"ok":true,"now":"2026-11-16T03:12:00.000Z"})";
    EXPECT_EQ(program.ask("advance 0\r"), now);
    EXPECT_EQ(program.ask("\t advance \t 0  "), now);
    EXPECT_EQ(program.ask(std::string("advance 0\0", 10)).substr(0, 11), R"({"ok":false)");
    EXPECT_EQ(program.ask("advance 0"), now);
}

TEST_F(ProgramTest, PreferencesThatAreDamagedAreKeptBesideTheNewOnes) {
    const auto preferences = root_ + "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
    DrivenProgram program(root_);
    program.done("screen");
    std::ofstream(preferences) << "no property list";
    program.openPane();
    program.openPage("General");
    program.done("set kcircleIcons true");
    EXPECT_TRUE(valueOf(program, "kcircleIcons").toBool());
    std::ifstream kept(preferences + ".damaged");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), "no property list");
}

TEST_F(ProgramTest, GoesOnWhenPreferencesCanBeNeitherReadNorWritten) {
    const auto preferences = root_ + "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
    DrivenProgram program(root_);
    program.done("screen");
    std::filesystem::create_directories(preferences);
    program.openPane();
    program.openPage("General");
    program.done("set kcircleIcons true");
    program.done("back");
    program.done("settle");
    program.tapView("GlintImageSwitch");
    program.done("settle");
    EXPECT_GE(program.done("log").value("events").toArray().size(), 2);
    EXPECT_EQ(program.done("screen").value("page").toString(), "cxRootListController");
    EXPECT_TRUE(std::filesystem::is_directory(preferences));
    EXPECT_EQ(program.end(), 0);
}

TEST_F(ProgramTest, GoesOnWhenItsDeviceRootIsGone) {
    DrivenProgram program(root_);
    program.openPane();
    program.openPage("General");
    std::filesystem::remove_all(root_);
    program.done("set kcircleIcons true");
    EXPECT_FALSE(program.ask("open").value("ok").toBool(true));
    program.done("relaunch");
    program.done("settle");
    EXPECT_EQ(program.done("screen").value("title").toString(), "Settings");
    EXPECT_EQ(program.end(), 0);
}

TEST_F(ProgramTest, ShowsSettingsWithoutAnyOfItsResources) {
    {
        DrivenProgram program(root_);
        program.done("screen");
    }
    std::filesystem::remove_all(root_ + "/Applications");
    DrivenProgram program(root_);
    program.done("snapshot " + folder_.path() + "/home.png");
    program.done("tap Settings");
    program.done("settle");
    program.done("snapshot " + folder_.path() + "/settings.png");
    program.done("tap About");
    program.done("settle");
    EXPECT_EQ(program.done("screen").value("page").toString(), "AboutPage");
}

TEST_F(ProgramTest, TellsOfItself) {
    EXPECT_EQ(exitCodeOf({"--version"}), 0);
    EXPECT_EQ(exitCodeOf({"--help"}), 0);
}

TEST_F(ProgramTest, SaysWhenItCannotTellOfItself) {
    for (const std::string option : {"--version", "--help"})
        EXPECT_EQ(exitCodeOf({"-c", PROGRAM " " + option + " >/dev/full"}, "/bin/sh"), 1) << option;
}

TEST_F(ProgramTest, RefusesOptionsThatMeanNothing) {
    EXPECT_EQ(exitCodeOf({"--nonsense"}), 2);
    EXPECT_EQ(exitCodeOf({"--drive", "--idiom", "watch"}), 2);
    EXPECT_EQ(exitCodeOf({"--drive", "--scale"}), 2);
    EXPECT_EQ(exitCodeOf({"extra"}), 2);
}

TEST_F(ProgramTest, SaysWhenTheDeviceRootIsNoFolder) {
    std::ofstream(root_) << "a file";
    EXPECT_EQ(exitCodeOf({"--drive", "--device-root", root_}), 1);
    EXPECT_EQ(exitCodeOf({"--drive", "--device-root", root_ + "/below"}), 1);
    std::filesystem::create_symlink("nowhere", folder_.path() + "/dangling");
    EXPECT_EQ(exitCodeOf({"--drive", "--device-root", folder_.path() + "/dangling"}), 1);
    std::ifstream file(root_);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "a file");
}

TEST_F(ProgramTest, SaysWhenTheDeviceRootCannotBeMade) {
    EXPECT_EQ(exitCodeOf({"--drive", "--device-root", "/proc/nowhere"}), 1);
}

} // namespace
