#include "BackupPageFixture.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

namespace files = std::filesystem;

const std::string sheetMade = "-[OBWelcomeController initWithTitle:detailText:symbolName:] ";
const std::string itemAdded =
    "-[OBWelcomeController addBulletedListItemWithTitle:description:image:tintColor:] ";
const std::string buttonMade = "-[UIBarButtonItem initWithTitle:style:target:action:] ";
const std::string presented = "-[cxBackupRestoreController presentViewController:animated:completion:] ";
const std::string sevenConstraints =
    "[NSLayoutConstraint, NSLayoutConstraint, NSLayoutConstraint, NSLayoutConstraint, "
    "NSLayoutConstraint, NSLayoutConstraint, NSLayoutConstraint]";
const std::string importedTypes =
    R"(["public.data", "public.archive", "org.gnu.gnu-zip-tar", "public.tar-archive", )"
    R"("org.gnu.gnu-zip", "public.composite-content"])";

class BackupPageTest : public BackupPageFixture {
protected:
    /// The lines of the journal that hold any of the texts.
    [[nodiscard]] static Lines journalOf(std::initializer_list<std::string_view> texts) {
        Lines lines = takeJournal();
        std::erase_if(lines, [&](const std::string& line) {
            return std::ranges::none_of(texts, [&](std::string_view text) { return line.contains(text); });
        });
        return lines;
    }

    /// What lies in the folder for temporary files.
    [[nodiscard]] static std::set<files::path> temporaryItems() {
        const files::directory_iterator items(temporaryFolder());
        std::set<files::path> paths;
        for (const auto& item : items)
            paths.insert(item.path());
        return paths;
    }
};

} // namespace

TEST_F(BackupPageTest, IsAPageOfTheFrameworkWithItsFolder) {
    EXPECT_STREQ(class_getName(class_getSuperclass(object_getClass(page))), "PSListController");
    EXPECT_TRUE(files::exists(folder + "/CorvexBackups"));
    EXPECT_EQ(describedAnswer(page, "backupsPath"), "\"" + folder + "/CorvexBackups\"");
    EXPECT_NE(perform(page, "dateFormatter", nullptr), nullptr);
    EXPECT_EQ(perform(page, "currentBackupsList", nullptr), nullptr);
}

TEST_F(BackupPageTest, LoadsItsListOnce) {
    takeJournal();
    specifiersOf(page);
    specifiersOf(page);
    EXPECT_EQ(takeJournal(), Lines{("-[cxBackupRestoreController loadSpecifiersFromPlistName:target:] "
                                    "\"BackupRestore\" cxBackupRestoreController")});
}

TEST_F(BackupPageTest, TheCreateSheetIsBuiltInOrder) {
    takeJournal();
    perform(page, "createBackup", nullptr);
    EXPECT_EQ(
        journalOf({"OBWelcomeController", "settingsForStyle", "atIndex", "setBackgroundColor",
                   "UIBarButtonItem", "UINavigationItem", "UINavigationBar", "Guide", "activateConstraints"}),
        (Lines{sheetMade + "\"Create Backup\" \"Save your current settings\" \"square.and.arrow.down.fill\"",
               "-[OBWelcomeController viewDidLoad]",
               "+[_UIBackdropViewSettings settingsForStyle:] 2",
               "-[UIView insertSubview:atIndex:] _UIBackdropView 0",
               "-[UIView setBackgroundColor:] clear",
               "-[OBWelcomeController setModalPresentationStyle:] 1",
               itemAdded + "\"Settings\" \"All your preferences and configurations\" <gear 0> systemBlue",
               itemAdded + "\"Images\" \"Custom images and icons\" <photo 0> systemGreen",
               itemAdded +
                   "\"Customizations\" \"Theme settings and visual preferences\" <paintbrush 0> systemOrange",
               buttonMade + "\"Cancel\" 0 cxBackupRestoreController dismissWelcomeController:",
               buttonMade + "\"Create Backup\" 2 cxBackupRestoreController showBackupNamePrompt:",
               "-[UINavigationBar initWithFrame:] {{0, 0}, {0, 0}}",
               "-[UINavigationBar setTranslatesAutoresizingMaskIntoConstraints:] 0",
               "-[UIView addSubview:] UINavigationBar",
               "-[UINavigationItem initWithTitle:] \"\"",
               "-[UINavigationItem setLeftBarButtonItem:] UIBarButtonItem",
               "-[UINavigationItem setRightBarButtonItem:] UIBarButtonItem",
               "-[UINavigationBar setItems:] [UINavigationItem]",
               "-[UINavigationBar topAnchor]",
               "-[UIView safeAreaLayoutGuide]",
               "-[UILayoutGuide topAnchor]",
               "-[UINavigationBar leadingAnchor]",
               "-[UINavigationBar trailingAnchor]",
               ("+[NSLayoutConstraint activateConstraints:] [NSLayoutConstraint, NSLayoutConstraint, "
                "NSLayoutConstraint]"),
               "-[OBWelcomeController setModalPresentationStyle:] 2",
               "-[OBWelcomeController setModalInPresentation:] 1",
               presented + "OBWelcomeController 1"}));
}

TEST_F(BackupPageTest, TheFieldHasTheKeyboardBeforeThePromptIsPresented) {
    perform(page, "createBackup", nullptr);
    takeJournal();
    perform(page, "showBackupNamePrompt:", rightButtonOf(page));
    EXPECT_EQ(
        journalOf({"dismissViewController", "UITextField", "activateConstraints", "presentViewController"}),
        (Lines{"-[cxBackupRestoreController dismissViewControllerAnimated:completion:] 1 completion",
               "-[UITextField initWithFrame:] {{0, 0}, {0, 0}}",
               "-[UITextField setPlaceholder:] \"Backup Name\"", "-[UITextField setBorderStyle:] 3",
               "-[UITextField setTranslatesAutoresizingMaskIntoConstraints:] 0",
               "-[UIView addSubview:] UITextField", "-[UITextField leadingAnchor]",
               "-[UITextField trailingAnchor]", "-[UITextField centerYAnchor]", "-[UITextField heightAnchor]",
               "+[NSLayoutConstraint activateConstraints:] " + sevenConstraints,
               "-[UITextField becomeFirstResponder]", presented + "OBWelcomeController 1"}));
}

TEST_F(BackupPageTest, ANameThatIsTypedBecomesAnArchive) {
    perform(page, "createBackup", nullptr);
    perform(page, "showBackupNamePrompt:", rightButtonOf(page));
    auto* const field = fieldPresentedBy(page);
    ASSERT_NE(field, nullptr);
    perform(field, "setText:", text("My Settings"));
    perform(page, "handleBackupNameSave:", rightButtonOf(page));
    EXPECT_TRUE(files::exists(backup("My Settings.tar.gz")));
}

TEST_F(BackupPageTest, WithoutANameAnAlertComesOverThePrompt) {
    perform(page, "createBackup", nullptr);
    perform(page, "showBackupNamePrompt:", rightButtonOf(page));
    takeJournal();
    perform(page, "handleBackupNameSave:", rightButtonOf(page));
    EXPECT_EQ(
        journalOf({"UIAlert", "dismiss"}),
        (Lines{"+[UIAlertController alertControllerWithTitle:message:preferredStyle:] \"Error\" \"Please "
               "enter a backup name\" 1",
               "+[UIAlertAction actionWithTitle:style:handler:] \"OK\" 0",
               "-[UIAlertController addAction:] \"OK\"",
               "-[OBWelcomeController presentViewController:animated:completion:] UIAlertController 1"}));
}

TEST_F(BackupPageTest, TheListLeadsToTheOptionsAndTheseToTheEnd) {
    save("a");
    perform(page, "showBackupList", nullptr);
    EXPECT_EQ(journalOf({"addBulletedListItem", "setTag", "initWithTarget", "addGestureRecognizer"}).size(),
              4U);
    auto* const item = listItemOf(page, 0);
    ASSERT_NE(recognizerOf(item), nullptr);
    perform(page, "handleBackupListItemTap:", recognizerOf(item));
    EXPECT_EQ(journalOf({"dismissViewController", "symbolName", "setTag"}),
              (Lines{"-[cxBackupRestoreController dismissViewControllerAnimated:completion:] 1 completion",
                     sheetMade + "\"a.tar\" \"Choose an action for this backup\" \"doc.fill\"",
                     "-[OBBulletedListItem setTag:] 0", "-[OBBulletedListItem setTag:] 1",
                     "-[OBBulletedListItem setTag:] 2", "-[OBBulletedListItem setTag:] 3"}));
    perform(page, "handleBulletedListTap:", recognizerOf(listItemOf(page, 3)));
    EXPECT_FALSE(files::exists(backup("a.tar.gz")));
    EXPECT_EQ(journalOf({"dismissViewController", "log:", "symbolName"}),
              (Lines{"-[cxBackupRestoreController dismissViewControllerAnimated:completion:] 1 completion",
                     "log: Deleting backup: a.tar.gz",
                     sheetMade + "\"Success\" \"Backup deleted successfully\" \"info.circle.fill\""}));
}

TEST_F(BackupPageTest, ItemsAreLookedForOnceTheirSheetIsPresentedAndThenTakeTaps) {
    save("a");
    const Lines steps{presented + "OBWelcomeController 1", "-[OBBulletedListItem setTag:] 0",
                      "-[OBBulletedListItem setUserInteractionEnabled:] 1",
                      "-[OBBulletedListItem addGestureRecognizer:] UITapGestureRecognizer"};
    const auto begin = [&] {
        auto lines =
            journalOf({"presentViewController", "setTag", "setUserInteraction", "addGestureRecognizer"});
        lines.resize(std::min(lines.size(), steps.size()));
        return lines;
    };
    perform(page, "showBackupList", nullptr);
    EXPECT_EQ(begin(), steps);
    perform(page, "dismissWelcomeController:", rightButtonOf(page));
    takeJournal();
    perform(page, "showOptionsForBackup:", text("a.tar.gz"));
    EXPECT_EQ(begin(), steps);
}

TEST_F(BackupPageTest, SheetsThatHaveNoViewsOfTheirItemsAreShownAllTheSame) {
    save("a");
    refuseInitialisersOf("OBBulletedListItem");
    perform(page, "showBackupList", nullptr);
    EXPECT_EQ(journalOf({"presentViewController", "setTag"}), Lines{presented + "OBWelcomeController 1"});
    EXPECT_EQ(describedAnswer(page, "currentBackupsList"), "[\"a.tar.gz\"]");
    perform(page, "dismissWelcomeController:", rightButtonOf(page));
    takeJournal();
    perform(page, "showOptionsForBackup:", text("a.tar.gz"));
    EXPECT_EQ(journalOf({"presentViewController", "setTag"}), Lines{presented + "OBWelcomeController 1"});
    refuseInitialisersOf(nullptr);
}

TEST_F(BackupPageTest, ARestoredBackupReplacesTheSettingsAndIsTold) {
    storeValue(text("blue"), "textColor");
    save("a");
    storeValue(text("red"), "textColor");
    storeValue(boolean(true), "kCenter");
    takeJournal();
    const auto before = temporaryItems();
    perform(page, "restoreBackup:", text("a.tar.gz"));
    auto* const button = rightButtonOf(page);
    EXPECT_EQ(temporaryItems().size(), before.size() + 1);
    EXPECT_EQ(journalOf({"setTintColor"}), Lines{"-[UIBarButtonItem setTintColor:] systemRed"});
    perform(page, "handleRestoreConfirm:", button);
    EXPECT_EQ(temporaryItems(), before);
    EXPECT_EQ(described(storedValue("textColor")), "\"blue\"");
    EXPECT_EQ(storedValue("kCenter"), nullptr);
}

TEST_F(BackupPageTest, ThePickerIsForArchivesInImportMode) {
    takeJournal();
    perform(page, "importBackup", nullptr);
    EXPECT_EQ(
        journalOf({"UIDocumentPicker"}),
        (Lines{"-[UIDocumentPickerViewController initWithDocumentTypes:inMode:] " + importedTypes + " 0",
               "-[UIDocumentPickerViewController setDelegate:] cxBackupRestoreController",
               "-[UIDocumentPickerViewController setModalPresentationStyle:] 2",
               "-[UIDocumentPickerViewController setAllowsMultipleSelection:] 0",
               "-[UIDocumentPickerViewController setDirectoryURL:] file://" + folder + "/",
               presented + "UIDocumentPickerViewController 1"}));
}

TEST_F(BackupPageTest, MethodsOfSeveralParametersAreOfTheTypesThatTheyTake) {
    EXPECT_STREQ(typesOf("cxBackupRestoreController", "showMessage:withTitle:completion:"), "v@:@@@?");
    EXPECT_STREQ(typesOf("cxBackupRestoreController",
                         "createWelcomeControllerWithTitle:detailText:symbolName:backdropStyle:"),
                 "@@:@@@q");
}
