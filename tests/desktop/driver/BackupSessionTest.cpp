// Backups from the first to the last step, as somebody makes and uses them from outside.

#include "Foundation/NSDictionary.h"
#include "WholeProgram.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <filesystem>

namespace {

constexpr auto preferences = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
constexpr auto backups = "/var/mobile/Documents/CorvexBackups";

/// \param options of the screen
class BackupSession {
public:
    explicit BackupSession(const Screen::Options& options) : program(options) {
        program.openPane();
        give({"tap Backups"});
    }

    /// Each line, and time until all is at rest.
    void give(std::initializer_list<std::string> lines) {
        for (const auto& line : lines) {
            program.done(line);
            program.done("settle");
        }
    }

    /// What is presented topmost; an object without members when nothing is.
    [[nodiscard]] QJsonObject presented() {
        const auto all = program.done("screen").value("presented").toArray();
        return all.isEmpty() ? QJsonObject() : all.last().toObject();
    }

    [[nodiscard]] QJsonArray events(const char* kind) { return program.done(kind).value("events").toArray(); }

    [[nodiscard]] std::string hostBackup() {
        return program.device().hostPath(std::string(backups) + "/My Settings.tar.gz");
    }

    /// A setting that is stored, or "(none)".
    [[nodiscard]] static std::string stored(std::string_view key) {
        const auto all = dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary());
        const auto found = all.find(key);
        return found == all.end() ? "(none)" : found->second.description();
    }

    /// All that can be done with a backup.
    void goWholeRoad() {
        create();
        list();
        share();
        restore();
        const auto kept = takeAway();
        import(kept);
    }

    WholeProgram program;

private:
    void create() {
        EXPECT_EQ(program.done("screen").value("page"), "cxBackupRestoreController");
        give({"back", "tap Banner", "set kCustom true", "back", "tap Backups", "tap \"Create Backup\"",
              "tap \"Create Backup\" #2", "type My Settings", "tap Create"});
        EXPECT_EQ(presented()["title"], "Success");
        EXPECT_EQ(presented()["right"].toArray()[0].toObject()["title"], "OK");
        EXPECT_TRUE(std::filesystem::exists(hostBackup()));
        give({"tap OK"});
    }

    void list() {
        give({"tap \"Show Backups\""});
        EXPECT_EQ(presented()["kind"], "sheet");
        EXPECT_EQ(presented()["style"], "formSheet");
        EXPECT_EQ(presented()["swipeDismissable"], false);
        const auto item = presented()["items"].toArray()[0].toObject();
        EXPECT_EQ(item["title"], "My Settings.tar");
        EXPECT_EQ(item["description"].toString().left(14), "11/16/26, 3:12") << "on the device's clock";
        EXPECT_EQ(item["tappable"], true);
        give({"tap \"My Settings.tar\""});
        EXPECT_EQ(presented()["items"].toArray().size(), 4);
        EXPECT_EQ(presented()["left"].toArray()[0].toObject()["title"], "Back");
    }

    void share() {
        give({"tap Share"});
        EXPECT_EQ(presented()["kind"], "share");
        EXPECT_EQ(presented()["urls"].toArray()[0],
                  "file:///var/mobile/Documents/CorvexBackups/My%20Settings.tar.gz");
        program.screen().presentations().top()->dismissPresented();
        program.done("settle");
    }

    void restore() {
        give({"back", "tap Banner", "set kCustom false", "back", "tap Backups", "tap \"Show Backups\"",
              "tap \"My Settings.tar\"", "tap Restore"});
        EXPECT_EQ(stored("kCustom"), "0");
        static_cast<void>(events("notifications"));
        give({"tap Restore"});
        EXPECT_EQ(presented()["title"], "Success");
        EXPECT_EQ(stored("kCustom"), "1");
        EXPECT_EQ(events("notifications"), QJsonArray{"com.orvel.corvexprefs/ReloadPrefs"});
        give({"tap OK"});
    }

    /// Deletes the backup. \returns a copy of it on the host
    [[nodiscard]] std::string takeAway() {
        const auto kept = program.device().hostPath("/My Settings.tar.gz");
        std::filesystem::copy_file(hostBackup(), kept);
        give({"tap \"Show Backups\"", "tap \"My Settings.tar\"", "tap Delete"});
        EXPECT_EQ(presented()["detail"], "Backup deleted successfully");
        give({"tap OK"});
        EXPECT_TRUE(presented().isEmpty());
        EXPECT_FALSE(std::filesystem::exists(hostBackup()));
        return kept;
    }

    void import(const std::string& kept) {
        give({"tap \"Import Backup\""});
        EXPECT_EQ(presented()["kind"], "documentPicker");
        program.done("pick \"" + kept + "\"");
        program.done("settle");
        EXPECT_EQ(presented()["detail"], "Backup imported successfully");
        give({"tap OK"});
        EXPECT_EQ(presented()["title"], "Available Backups");
        EXPECT_TRUE(std::filesystem::exists(hostBackup()));
        give({"tap Done"});
    }
};

} // namespace

TEST(BackupSessionTest, TheWholeRoadOnAPhone) {
    BackupSession({}).goWholeRoad();
}

TEST(BackupSessionTest, TheWholeRoadOnADarkTablet) {
    BackupSession({.idiom = Idiom::Pad, .style = UserInterfaceStyle::Dark}).goWholeRoad();
}

TEST(BackupSessionTest, WithoutFilzaTheMessageComesAndGoes) {
    BackupSession session({});
    session.give({"url-handler filza none", "tap \"Create Backup\"", "tap \"Create Backup\" #2", "type a",
                  "tap Create", "tap OK", "tap \"Show Backups\"", "tap a.tar", "tap \"Open in Filza\""});
    EXPECT_EQ(session.presented()["detail"], "Filza is not installed");
    session.give({"tap OK"});
    EXPECT_TRUE(session.presented().isEmpty());
}
