// Who has no mouse makes, restores and deletes backups all the same.

#include "BackupPageFixture.h"
#include "DeviceWindow.h"
#include "accessibility/AccessibilityElement.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <algorithm>

namespace {

constexpr auto rows = R"(<plist version="1.0"><dict><key>items</key><array>
    <dict><key>cell</key><string>PSButtonCell</string><key>label</key><string>Make</string>
    <key>action</key><string>createBackup</string></dict>
    <dict><key>cell</key><string>PSButtonCell</string><key>label</key><string>List</string>
    <key>action</key><string>showBackupList</string></dict></array></dict></plist>)";

class BackupKeyboardTest : public BackupPageFixture {
protected:
    BackupKeyboardTest()
        : shown(screen, finger,
                {.scale = std::nullopt,
                 .followsAppearance = true,
                 .goBack = {},
                 .beginFrame = [] {},
                 .showTime = [] {}}) {
        device.write(std::string(bundlePath) + "/BackupRestore.plist", rows);
        show();
        shown.resize(195, 422);
        shown.show();
        QCoreApplication::processEvents();
    }

    void press(Qt::Key key, const QString& text = {}) {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&shown, &down);
        QCoreApplication::processEvents();
        settle();
    }

    /// Goes to the button of that name with Tab and presses it.
    void choose(const std::string& label) {
        constexpr auto mostElements = 20;
        for (int steps = 0; steps < mostElements; ++steps) {
            press(Qt::Key_Tab);
            if (isAtButton(label)) {
                press(Qt::Key_Space, " ");
                return;
            }
        }
        ADD_FAILURE() << "Tab does not lead to " << label;
    }

    [[nodiscard]] bool isAtButton(const std::string& label) const {
        const auto focused = shown.focusedView();
        auto* const root = viewInFront();
        if (!focused || root == nullptr)
            return false;
        return std::ranges::any_of(AccessibilityElement::allIn(*root),
                                   [&](const AccessibilityElement& element) {
                                       return element.view == focused && element.label.starts_with(label) &&
                                              element.role == AccessibilityRole::Button;
                                   });
    }

    void makeOne() {
        choose("Make");
        choose("Create Backup");
        for (const auto letter : {'M', 'i', 'n', 'e'})
            press(Qt::Key_unknown, QChar::fromLatin1(letter));
        choose("Create");
        EXPECT_EQ(message(), Message("Success", "Backup created successfully"));
        choose("OK");
    }

    DeviceWindow shown;
};

} // namespace

TEST_F(BackupKeyboardTest, ABackupIsMadeUnderTheNameThatIsTyped) {
    makeOne();
    EXPECT_EQ(namesIn(backupsFolder), Names{"Mine.tar.gz"});
    EXPECT_FALSE(isPresenting());
}

TEST_F(BackupKeyboardTest, ABackupIsRestored) {
    store("blue", "textColor");
    makeOne();
    store("red", "textColor");
    choose("List");
    choose("Mine.tar");
    choose("Restore");
    choose("Restore");
    EXPECT_EQ(message().first, "Success");
    EXPECT_EQ(stored("textColor"), PropertyList("blue"));
    choose("OK");
    EXPECT_FALSE(isPresenting());
}

TEST_F(BackupKeyboardTest, ABackupIsDeleted) {
    makeOne();
    choose("List");
    choose("Mine.tar");
    choose("Delete");
    EXPECT_EQ(namesIn(backupsFolder), Names());
    EXPECT_EQ(message(), Message("Success", "Backup deleted successfully"));
    choose("OK");
    EXPECT_FALSE(isPresenting());
}
