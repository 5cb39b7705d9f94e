#include "DesktopFileDialog.h"

#include "WindowFixture.h"

#include <QApplication>

namespace {

class DesktopFileDialogTest : public WindowFixture {
protected:
    /// The dialog that is open; null for none.
    static QFileDialog* shownDialog() {
        for (auto* const widget : QApplication::topLevelWidgets()) {
            if (auto* const dialog = qobject_cast<QFileDialog*>(widget);
                dialog != nullptr && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    static void accept(QDialog& dialog) {
        dialog.accept();
        run();
    }

    HostFileDialog::Chosen note() {
        return [this](const std::string& path) { chosen.push_back(path); };
    }

    [[nodiscard]] QString path(const char* name) const {
        return QString::fromStdString(folder.path()) + "/" + name;
    }

    const TemporaryFolder folder;
    std::vector<std::string> chosen;
};

} // namespace

TEST_F(DesktopFileDialogTest, TheWindowGivesTheScreenOne) {
    EXPECT_NE(screen.fileDialog(), nullptr);
}

TEST_F(DesktopFileDialogTest, AFileIsChosen) {
    QFile file(path("a ü.gz"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    screen.fileDialog()->chooseFile(note());
    auto* const dialog = shownDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(dialog->windowHandle()->transientParent(), &shown);
    dialog->selectFile(path("a ü.gz"));
    accept(*dialog);
    EXPECT_EQ(chosen, std::vector{path("a ü.gz").toStdString()});
    EXPECT_EQ(shownDialog(), nullptr);
}

TEST_F(DesktopFileDialogTest, AFolderIsChosen) {
    screen.fileDialog()->chooseFolder(note());
    auto* const dialog = shownDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialog->testOption(QFileDialog::ShowDirsOnly));
    dialog->setDirectory(path(""));
    dialog->selectFile(QString::fromStdString(folder.path()));
    accept(*dialog);
    EXPECT_EQ(chosen, std::vector{folder.path()});
}

TEST_F(DesktopFileDialogTest, NothingIsChosenByClosingIt) {
    screen.fileDialog()->chooseFile(note());
    static_cast<QDialog*>(shownDialog())->reject();
    run();
    EXPECT_TRUE(chosen.empty());
}

TEST_F(DesktopFileDialogTest, AnotherOneTakesTheFirstOnesPlace) {
    screen.fileDialog()->chooseFile(note());
    screen.fileDialog()->chooseFolder(note());
    ASSERT_NE(shownDialog(), nullptr);
    EXPECT_EQ(shownDialog()->fileMode(), QFileDialog::Directory);
    static_cast<QDialog*>(shownDialog())->reject();
    run();
    EXPECT_EQ(shownDialog(), nullptr);
    EXPECT_TRUE(chosen.empty());
}
