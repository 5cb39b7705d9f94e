// What the pane's own code allocates and has to free: the runtime does not know of it.

#include "Memory.h"

#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"
#include "WholePaneFixture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

namespace {

/// Longer than what a text keeps in itself.
constexpr auto longText = "a text that is kept in a block of its own";

/// What the cells read of their rows.
constexpr std::array rowKeys{
    "label",        "title",      "description", "infoTitle",  "infoMessage",     "localizationTable",
    "leftIcon",     "leftLabel",  "leftClass",   "middleIcon", "middleLabel",     "middleClass",
    "rightIcon",    "rightLabel", "rightClass",  "iconColor",  "iconShadowColor", "fontColor",
    "renderingMode"};

class MemoryTest : public WholePaneFixture {
protected:
    /// Does something until what is kept for good is there, and then once more.
    /// \returns how many blocks that has left behind
    template <class Use>
    [[nodiscard]] static std::ptrdiff_t leftBehindBy(Use use) {
        constexpr int untilAllIsThere = 2;
        std::size_t before = 0;
        for (int round = 0; round <= untilAllIsThere; ++round) {
            before = blocksInUse();
            const AutoreleasePool pool;
            use();
            finishAnimations();
            runWaitingWork();
            takeJournal();
            forgetSuites();
        }
        return static_cast<std::ptrdiff_t>(blocksInUse()) - static_cast<std::ptrdiff_t>(before);
    }
};

} // namespace

TEST_F(MemoryTest, NothingIsLeftOfTheFirstPage) {
    EXPECT_EQ(leftBehindBy([] {
                  auto* const page = newByName("cxRootListController");
                  viewOf(page), specifiersOf(page);
                  touchDown(titleViewOf(page), 10);
                  touchUp(titleViewOf(page), 40);
                  for (const unsigned action : {0U, 1U})
                      choose(menuActionOf(page, action));
                  answerAlertOf(page, 1);
                  perform(page, "showWtfChangedInThisVersion", nullptr);
                  dismissPresented(page);
                  objc_release(page);
              }),
              0);
}

TEST_F(MemoryTest, NothingIsLeftOfTheOtherPages) {
    EXPECT_EQ(leftBehindBy([] {
                  for (const auto* const name :
                       {"cxGeneralController", "cxBannerController", "cxColorController", "cxLabelController",
                        "cxBackgroundController", "cxOrganizeController", "cxExtraController"}) {
                      auto* const page = newByName(name);
                      viewOf(page);
                      if (answersTo(page, "collectDynamicSpecifiersFromArray:"))
                          perform(page, "collectDynamicSpecifiersFromArray:", specifiersOf(page));
                      heightOfRow(page, 0);
                      setValueOf(page, number(1), elementOf(specifiersOf(page), 1));
                      objc_release(page);
                  }
              }),
              0);
}

TEST_F(MemoryTest, NothingIsLeftOfCells) {
    EXPECT_EQ(leftBehindBy([] {
                  auto* const table = newByName("UIView");
                  for (const auto* const name : {"CXSwitchWithInfoCell", "CxHeaderCell", "TweakCustomCell"}) {
                      auto* const specifier = emptySpecifier();
                      for (const auto* const key : rowKeys)
                          performWithTwo(specifier, "setProperty:forKey:", text(longText), text(key));
                      auto* const cell = newCell(name, 0, text("row"), specifier);
                      perform(cell, "refreshCellContentsWithSpecifier:", specifier);
                      layOut(cell);
                      if (answersTo(cell, "infoButtonTapped"))
                          perform(cell, "infoButtonTapped", nullptr);
                      moveView(cell, table);
                      moveView(cell, nullptr);
                      objc_release(cell);
                  }
                  objc_release(table);
              }),
              0);
}

TEST_F(MemoryTest, NothingIsLeftOfTheBackups) {
    EXPECT_EQ(leftBehindBy([] {
                  auto* const page = newByName("cxBackupRestoreController");
                  viewOf(page), specifiersOf(page);
                  perform(page, "createBackup", nullptr);
                  perform(page, "showBackupNamePrompt:", rightButtonOf(page));
                  perform(fieldPresentedBy(page), "setText:", text(longText));
                  perform(page, "handleBackupNameSave:", rightButtonOf(page));
                  perform(page, "dismissMessageController:", rightButtonOf(page));
                  perform(page, "showBackupList", nullptr);
                  perform(page, "restoreBackup:", text((std::string(longText) + ".tar.gz").c_str()));
                  perform(page, "handleRestoreConfirm:", rightButtonOf(page));
                  dismissPresented(page);
                  objc_release(page);
              }),
              0);
}
