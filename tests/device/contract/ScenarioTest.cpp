// Somebody who uses the whole pane. What it tells the frameworks from beginning to end goes into the file
// that the environment names (SCENARIO_JOURNAL): it is to be the same whatever processor the pane's code is
// compiled for.

#include "CodeUnderTest.h"
#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"
#include "WholePaneFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace files = std::filesystem;

class ScenarioTest : public WholePaneFixture {
protected:
    /// Does something, and keeps what it told the frameworks.
    template <class Step>
    void step(const std::string& name, Step act) {
        {
            const AutoreleasePool pool;
            act();
            finishAnimations();
            runWaitingWork();
        }
        journal_.push_back("== " + name);
        for (const auto& line : takeJournal())
            journal_.push_back(withoutPlaces(line));
    }

    [[nodiscard]] std::string backup(const char* name) const { return folder + "/CorvexBackups/" + name; }

    [[nodiscard]] const std::vector<std::string>& journal() const { return journal_; }

private:
    /// Without what differs from one run to the next.
    [[nodiscard]] std::string withoutPlaces(std::string line) const {
        replace(line, folder, "", "DOCUMENTS");
        replace(line, folderOfCode(), "", "BUNDLE");
        replace(line, temporaryFolder(), "\" ", "TEMPORARY");
        replace(line, placeOfFile("/var/jb/var"), "", "/var/jb/var");
        if (line.contains("addBulletedListItem"))
            line = std::regex_replace(line, std::regex("[0-9/]+, [0-9]+:[0-9]+[^\"]*"), "DATE");
        return line;
    }

    /// \param ends what ends a longer text that begins so; nothing when it is that text alone
    static void replace(std::string& line, const std::string& text, std::string_view ends,
                        std::string_view name) {
        for (auto at = line.find(text); at != std::string::npos; at = line.find(text)) {
            const auto end = ends.empty() ? at + text.size() : line.find_first_of(ends, at);
            line.replace(at, std::min(end, line.size()) - at, name);
        }
    }

    std::vector<std::string> journal_;
};

} // namespace

TEST_F(ScenarioTest, SomebodyUsesTheWholePane) {
    auto* const root = newByName("cxRootListController");
    auto* const backups = newByName("cxBackupRestoreController");
    step("open the first page", [&] { viewOf(root), specifiersOf(root); });
    for (const auto* const name :
         {"cxGeneralController", "cxBannerController", "cxColorController", "cxLabelController",
          "cxBackgroundController", "cxOrganizeController", "cxExtraController"}) {
        step(std::string("open ") + name, [&] {
            auto* const page = newByName(name);
            viewOf(page);
            if (answersTo(page, "collectDynamicSpecifiersFromArray:"))
                perform(page, "collectDynamicSpecifiersFromArray:", specifiersOf(page));
            heightOfRow(page, 0), heightOfRow(page, 1);
            setValueOf(page, number(1), elementOf(specifiersOf(page), 1));
            objc_release(page);
        });
    }
    step("show the cells", [] {
        auto* const table = newByName("UIView");
        for (const auto* const name : {"CXSwitchWithInfoCell", "CxHeaderCell", "TweakCustomCell"}) {
            auto* const cell = newCell(name, 0, text("row"), emptySpecifier());
            moveView(cell, table);
            perform(cell, "refreshCellContentsWithSpecifier:", emptySpecifier());
            layOut(cell);
            objc_release(cell);
        }
        objc_release(table);
    });
    step("flip the switch", [&] {
        touchDown(titleViewOf(root), 10);
        touchMoved(titleViewOf(root), 40);
        touchUp(titleViewOf(root), 40);
    });
    step("open the backups", [&] { viewOf(backups), specifiersOf(backups); });
    step("make a backup", [&] {
        perform(backups, "createBackup", nullptr);
        perform(backups, "showBackupNamePrompt:", rightButtonOf(backups));
        perform(fieldPresentedBy(backups), "setText:", text("all"));
        perform(backups, "handleBackupNameSave:", rightButtonOf(backups));
        perform(backups, "dismissMessageController:", rightButtonOf(backups));
    });
    step("change a setting", [] { storeValue(text("red"), "textColor"); });
    step("restore the backup", [&] {
        perform(backups, "restoreBackup:", text("all.tar.gz"));
        perform(backups, "handleRestoreConfirm:", rightButtonOf(backups));
    });
    step("import it from elsewhere", [&] {
        files::copy_file(backup("all.tar.gz"), backup("../other.tar.gz"));
        perform(backups, "importBackup", nullptr);
        pickDocument(presentedBy(backups), (backup("../other.tar.gz")).c_str());
    });
    step("delete it", [&] {
        perform(backups, "showBackupList", nullptr);
        perform(backups, "handleBackupListItemTap:", recognizerOf(listItemOf(backups, 0)));
        perform(backups, "handleBulletedListTap:", recognizerOf(listItemOf(backups, 3)));
    });
    step("apply", [&] { choose(menuActionOf(root, 0)); });
    step("reset", [&] {
        choose(menuActionOf(root, 1));
        answerAlertOf(root, 1);
    });
    step("leave", [&] {
        for (auto* const page : {backups, root}) {
            dismissPresented(page);
            objc_release(page);
        }
    });
    for (const auto* const name :
         {"cxRootListController", "cxBackupRestoreController", "PSSpecifier", "UIView"})
        EXPECT_EQ(aliveOf(name), 0) << name;
    constexpr std::size_t atLeast = 400; // lines, of somebody who really got through
    EXPECT_GT(journal().size(), atLeast);
    if (const auto* const path = std::getenv("SCENARIO_JOURNAL")) {
        std::ofstream file(path);
        for (const auto& line : journal())
            file << line << '\n';
    }
}
