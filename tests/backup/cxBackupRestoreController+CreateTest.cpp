#include "BackupPageFixture.h"
#include "DesktopColor.h"
#include "ObjectiveC/AttachedValues.h"
#include "RectGeometry.h"
#include "UIKit/UITextField.h"
#include "controllers/UIViewControllerPeer.h"
#include "text/UITextFieldPeer.h"
#include "views/UIViewPeer.h"

namespace {

class cxBackupRestoreControllerCreateTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerCreateTest() { show(); }

    void askForName() {
        page->createBackup();
        settle();
        tapOn("Create Backup");
    }

    [[nodiscard]] Ref<UITextField> field() const {
        const auto attached = attachedValueOf<Ref<NSObject>>(*sheet(), "BackupNameTextField");
        return attached ? dynamicCast<UITextField>(*attached) : nullptr;
    }

    [[nodiscard]] static ColorComponents shown(const Ref<UIColor>& color) {
        return DesktopColor::resolve(color, Traits());
    }
};

} // namespace

TEST_F(cxBackupRestoreControllerCreateTest, TheSheetTellsWhatABackupHolds) {
    page->createBackup();
    settle();
    EXPECT_EQ(presented().title(), "Create Backup");
    EXPECT_EQ(details().detail, "Save your current settings");
    EXPECT_EQ(details().symbol, "square.and.arrow.down.fill");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);
    const auto items = details().items;
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].title, "Settings");
    EXPECT_EQ(items[0].description, "All your preferences and configurations");
    EXPECT_EQ(items[0].symbol, "gear");
    EXPECT_EQ(shown(items[0].tint), shown(UIColor::systemBlueColor()));
    EXPECT_EQ(items[1].title, "Images");
    EXPECT_EQ(items[1].description, "Custom images and icons");
    EXPECT_EQ(items[1].symbol, "photo");
    EXPECT_EQ(shown(items[1].tint), shown(UIColor::systemGreenColor()));
    EXPECT_EQ(items[2].title, "Customizations");
    EXPECT_EQ(items[2].description, "Theme settings and visual preferences");
    EXPECT_EQ(items[2].symbol, "paintbrush");
    EXPECT_EQ(shown(items[2].tint), shown(UIColor::systemOrangeColor()));
    for (const auto& item : items)
        EXPECT_FALSE(item.tappable) << item.title;
}

TEST_F(cxBackupRestoreControllerCreateTest, TheSheetHasTwoButtons) {
    page->createBackup();
    settle();
    EXPECT_EQ(leftButton()->content().title, "Cancel");
    EXPECT_FALSE(leftButton()->content().emphasised);
    EXPECT_EQ(rightButton()->content().title, "Create Backup");
    EXPECT_TRUE(rightButton()->content().emphasised);
}

TEST_F(cxBackupRestoreControllerCreateTest, ItsItemsDoNothing) {
    page->createBackup();
    settle();
    for (const auto& item : page->findBulletedListItemsInView(sheet()->bulletedList())) {
        tap(*item);
        settle();
        EXPECT_EQ(presented().title(), "Create Backup");
        EXPECT_EQ(details().detail, "Save your current settings");
    }
}

TEST_F(cxBackupRestoreControllerCreateTest, CancellingEitherSheetMakesNothing) {
    page->createBackup();
    settle();
    tapOn("Cancel");
    EXPECT_FALSE(isPresenting());
    askForName();
    type("name");
    tapOn("Cancel");
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerCreateTest, ThePromptComesOnceTheFirstSheetHasGone) {
    page->createBackup();
    settle();
    page->showBackupNamePrompt(nullptr);
    advance(std::chrono::milliseconds(100));
    EXPECT_EQ(screen.presentations().all().size(), 0U) << "the first is still on its way out";
    settle();
    EXPECT_EQ(screen.presentations().all().size(), 1U);
    EXPECT_EQ(details().detail, "Enter a name for your backup");
}

TEST_F(cxBackupRestoreControllerCreateTest, ThePromptAsksForAName) {
    askForName();
    EXPECT_EQ(presented().title(), "Create Backup");
    EXPECT_EQ(details().detail, "Enter a name for your backup");
    EXPECT_EQ(details().symbol, "square.and.arrow.down.fill");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);
    EXPECT_TRUE(details().items.empty());
    EXPECT_EQ(leftButton()->content().title, "Cancel");
    EXPECT_FALSE(leftButton()->content().emphasised);
    EXPECT_EQ(rightButton()->content().title, "Create");
    EXPECT_TRUE(rightButton()->content().emphasised);
    const auto fields = details().fields;
    ASSERT_EQ(fields.size(), 1U);
    EXPECT_EQ(fields[0].placeholder, "Backup Name");
    EXPECT_EQ(fields[0].text, "");
    EXPECT_TRUE(fields[0].isFirstResponder);
    EXPECT_GT(screen.keyboardHeight(), 0);
}

TEST_F(cxBackupRestoreControllerCreateTest, TheFieldIsAcrossTheSheetInItsMiddle) {
    askForName();
    ASSERT_TRUE(field());
    layOut();
    const auto& view = sheet()->view();
    const auto frame = field()->frame();
    EXPECT_EQ(field()->superview().get(), &view);
    EXPECT_DOUBLE_EQ(frame.origin.x, 20);
    EXPECT_DOUBLE_EQ(frame.size.width, view.bounds().size.width - 40);
    EXPECT_DOUBLE_EQ(frame.size.height, 40);
    const auto insets = view.peer().safeAreaInsets();
    EXPECT_NEAR(CGRectGetMidY(frame), (insets.top + view.bounds().size.height - insets.bottom) / 2, 0.5);
    EXPECT_LT(CGRectGetMaxY(screenFrame(*field())), screen.bounds().size.height - screen.keyboardHeight());
}

TEST_F(cxBackupRestoreControllerCreateTest, ABackupIsMadeUnderTheNameThatIsTyped) {
    createNamed("My Settings");
    EXPECT_EQ(message(), (Message{"Success", "Backup created successfully"}));
    EXPECT_EQ(namesIn(backupsFolder), Names{"My Settings.tar.gz"});
    tapOn("OK");
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerCreateTest, TheBackupIsMadeOnceThePromptHasGone) {
    askForName();
    type("late");
    page->handleBackupNameSave(nullptr);
    EXPECT_EQ(namesIn(backupsFolder), Names());
    settle();
    EXPECT_EQ(namesIn(backupsFolder), Names{"late.tar.gz"});
}

TEST_F(cxBackupRestoreControllerCreateTest, ANameOfOneSpaceIsAName) {
    createNamed(" ");
    EXPECT_EQ(namesIn(backupsFolder), Names{" .tar.gz"});
}

TEST_F(cxBackupRestoreControllerCreateTest, WithoutANameAnAlertSaysSoOverThePrompt) {
    askForName();
    tapOn("Create");
    ASSERT_EQ(screen.presentations().all().size(), 2U);
    EXPECT_EQ(presented().kind(), "alert");
    EXPECT_EQ(presented().title(), "Error");
    EXPECT_EQ(details().detail, "Please enter a backup name");
    ASSERT_EQ(presented().actions().size(), 1U);
    EXPECT_EQ(presented().actions()[0].title, "OK");
    EXPECT_FALSE(presented().actions()[0].cancels);
    EXPECT_FALSE(presented().actions()[0].destructive);
    tapOn("OK");
    EXPECT_EQ(details().detail, "Enter a name for your backup");
    EXPECT_EQ(namesIn(backupsFolder), Names());
    type("now");
    tapOn("Create");
    EXPECT_EQ(namesIn(backupsFolder), Names{"now.tar.gz"});
}

TEST_F(cxBackupRestoreControllerCreateTest, SavingWithoutASheetDoesNothing) {
    page->handleBackupNameSave(nullptr);
    settle();
    EXPECT_FALSE(isPresenting());
    page->presentViewController(make<UIViewController>(), false, {});
    page->handleBackupNameSave(nullptr);
    settle();
    EXPECT_EQ(screen.presentations().all().size(), 1U);
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerCreateTest, ASheetWithoutAFieldCountsAsOneWithoutAName) {
    page->showMessage("Text", "Title");
    settle();
    page->handleBackupNameSave(nullptr);
    settle();
    EXPECT_EQ(presented().kind(), "alert");
    EXPECT_EQ(details().detail, "Please enter a backup name");
}
