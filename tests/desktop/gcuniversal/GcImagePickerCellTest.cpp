#include "GcImagePickerCell.h"

#include "DialogStandIn.h"
#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "screen/FilePicker.h"

#include <QImage>

namespace {

using Texts = std::vector<std::string>;

class GcImagePickerCellTest : public RowsFixture {
protected:
    explicit GcImagePickerCellTest(const TestDevice::Settings& settings = {}) : RowsFixture(settings) {
        writeList({keptRow("PSLinkCell", "photo", text("cellClass", "GcImagePickerCell"))});
        show();
    }

    void open() {
        tap("photo");
        settle();
        ASSERT_NE(sheet(), nullptr);
    }

    [[nodiscard]] std::string picture() const {
        QImage image(8, 6, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const auto path = files_.path() + "/a.png";
        EXPECT_TRUE(image.save(QString::fromStdString(path)));
        return path;
    }

    [[nodiscard]] bool isKept() const {
        return !device.read("/var/jb/var/mobile/Library/Preferences/com.example.test/photo-IMG").empty();
    }

    [[nodiscard]] UIImageView& preview() const {
        return dynamic_cast<UIImageView&>(*cellPeer("photo").subviews().front()->peer().subviews().back());
    }

    void press(const std::string& label) {
        Phone::tap(*elementOnSheet(label).view);
        settle();
    }

    TemporaryFolder files_;
};

class GermanImagePickerCellTest : public GcImagePickerCellTest {
protected:
    GermanImagePickerCellTest() : GcImagePickerCellTest({.locale = "de_DE"}) {}
};

class HebrewImagePickerCellTest : public GcImagePickerCellTest {
protected:
    HebrewImagePickerCellTest() : GcImagePickerCellTest({.locale = "he_IL"}) {}
};

} // namespace

TEST_F(GermanImagePickerCellTest, AllOfTheSheetIsInGerman) {
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=kein Bild"});
    open();
    EXPECT_TRUE(sheet()->filePicker()->pickFiles({picture()}));
    settle();
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=Bild"});
    open();
    EXPECT_EQ(namesOnSheet(),
              (Texts{"Abbrechen", "Bild",
                     "Lege eine PNG-, JPEG- oder HEIC-Datei auf dem Fenster ab oder gib ihren Pfad ein.",
                     "Pfad einer Datei", "Bild entfernen"}));
}

TEST_F(HebrewImagePickerCellTest, WhatIsWrongIsToldInHebrew) {
    open();
    const auto refused = sheet()->filePicker()->pickFiles({"/etc/passwd"});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), "הקובץ אינו תמונה שניתן להשתמש בה. יש לבחור קובץ PNG, JPEG או HEIC.");
    settle();
    EXPECT_EQ(sheet()->title(), "לא ניתן להשתמש בתמונה");
    EXPECT_EQ(sheet()->actions().at(0).title, "אישור");
}

TEST_F(GcImagePickerCellTest, TakesAPictureAndShowsIt) {
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=no image"});
    open();
    ASSERT_NE(sheet()->filePicker(), nullptr);
    EXPECT_TRUE(sheet()->filePicker()->pickFiles({picture()}));
    settle();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_TRUE(isKept());
    EXPECT_TRUE(preview().image());
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=image"});
}

TEST_F(GcImagePickerCellTest, SaysWhyAFileIsNotTaken) {
    open();
    EXPECT_FALSE(sheet()->filePicker()->pickFiles({"/etc/passwd"}));
    settle();
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->kind(), "alert");
    EXPECT_EQ(sheet()->title(), "The Image Cannot Be Used");
    EXPECT_EQ(sheet()->filePicker(), nullptr);
    const auto button = sheet()->actions().front().frame;
    Phone::tap({CGRectGetMidX(button), CGRectGetMidY(button)});
    settle();
    ASSERT_EQ(sheet()->kind(), "sheet");
    EXPECT_FALSE(sheet()->filePicker()->pickFiles({picture(), picture()}));
}

TEST_F(GcImagePickerCellTest, IsCancelled) {
    open();
    sheet()->filePicker()->cancelPicking();
    settle();
    EXPECT_EQ(sheet(), nullptr);
    open();
    press("Cancel");
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_FALSE(preview().image());
}

TEST_F(GcImagePickerCellTest, TakesAPathThatIsTyped) {
    open();
    press("Path of a File");
    auto* const input = screen.firstResponder().input();
    ASSERT_NE(input, nullptr);
    input->edit([path = QString::fromStdString(picture())](EditedText& edited) { edited.insert(path); });
    input->returnPressed();
    settle();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_TRUE(isKept());
}

TEST_F(GcImagePickerCellTest, APathThatWasTypedIsNotTakenWhenItIsCancelled) {
    open();
    press("Path of a File");
    screen.firstResponder().input()->edit(
        [path = QString::fromStdString(picture())](EditedText& edited) { edited.insert(path); });
    sheet()->filePicker()->cancelPicking();
    settle();
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=no image"});
}

TEST_F(GcImagePickerCellTest, RemovesThePicture) {
    open();
    EXPECT_TRUE(sheet()->filePicker()->pickFiles({picture()}));
    settle();
    open();
    press("Remove Image");
    EXPECT_FALSE(preview().image());
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=no image"});
}

TEST_F(GcImagePickerCellTest, TheHostsDialogChoosesAPictureWhereThereIsOne) {
    open();
    for (const auto& element : AccessibilityElement::allIn(sheet()->shownView()))
        EXPECT_NE(element.label, HostFileDialog::buttonTitle);
    press("Cancel");
    auto dialog = std::make_unique<DialogStandIn>();
    auto& asked = *dialog;
    screen.setFileDialog(std::move(dialog));
    open();
    press(HostFileDialog::buttonTitle);
    EXPECT_EQ(asked.filesAsked, 1);
    asked.answer(picture());
    settle();
    EXPECT_TRUE(isKept());
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(GcImagePickerCellTest, WhatTheHostsDialogAnswersTooLateIsLeft) {
    auto dialog = std::make_unique<DialogStandIn>();
    auto& asked = *dialog;
    screen.setFileDialog(std::move(dialog));
    open();
    press(HostFileDialog::buttonTitle);
    press("Cancel");
    asked.answer(picture());
    settle();
    EXPECT_EQ(elementsOf("photo"), Texts{"Row photo=no image"});
}
