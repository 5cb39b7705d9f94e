#include "cells/PSEditableTableCell.h"

#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "keyboard/Keyboard.h"
#include "system/DarwinNotifications.h"
#include "typing/TextInput.h"

namespace {

class PSEditableTableCellTest : public RowsFixture {
protected:
    /// Opens a list of fields, named from 0.
    void showFields(int count) {
        std::vector<std::string> rows;
        rows.reserve(static_cast<std::size_t>(count));
        for (int index = 0; index < count; ++index)
            rows.push_back(keptRow("PSEditTextCell", std::to_string(index)));
        writeList(rows);
        show();
    }
};

using Texts = std::vector<std::string>;

void type(UITextFieldPeer& field, const QString& text) {
    field.edit([&text](EditedText& edited) { edited.insert(text); });
}

TextInputTraits traitsOf(const UITextFieldPeer& field) {
    return field.textInputTraits();
}

} // namespace

TEST_F(PSEditableTableCellTest, ShowsTheValueOrThePlaceholder) {
    writeList({keptRow("PSEditTextCell", "a", text("default", "Value")),
               keptRow("PSEditTextCell", "b", text("placeholder", "Nothing yet")),
               keptRow("PSEditTextCell", "c", value("default", "<integer>3</integer>"))});
    show();
    EXPECT_EQ(fieldOf("a").fieldText(), "Value");
    EXPECT_EQ(fieldOf("b").shownText(), "Nothing yet");
    EXPECT_EQ(fieldOf("c").fieldText(), "3");
}

TEST_F(PSEditableTableCellTest, TheFieldStandsAfterTheLabel) {
    writeList({keptRow("PSEditTextCell", "a"),
               text("cell", "PSEditTextCell") + text("key", "b") + text("defaults", domain)});
    show();
    const auto label = cellPeer("a").textLabel().frame();
    const auto field = fieldOf("a").view().frame();
    EXPECT_EQ(label.origin.x, 16);
    EXPECT_EQ(field.origin.x, CGRectGetMaxX(label) + 12);
    EXPECT_EQ(CGRectGetMaxX(field), 342);
    EXPECT_EQ(fieldOf("b").view().frame().origin.x, 16);
}

TEST_F(PSEditableTableCellTest, ALongLabelLeavesTheFieldRoom) {
    writeList({text("cell", "PSEditTextCell") + text("key", "a") + text("defaults", domain) +
               text("label", "What the first row of Settings is called on this device")});
    show();
    EXPECT_EQ(fieldOf("a").view().frame().size.width, 80);
    EXPECT_EQ(CGRectGetMaxX(fieldOf("a").view().frame()), 342);
    EXPECT_EQ(CGRectGetMaxX(cellPeer("a").textLabel().frame()), 342 - 80 - 12);
}

TEST_F(PSEditableTableCellTest, TheValueIsWrittenWhenEditingEnds) {
    writeList({keptRow("PSEditTextCell", "a", text("PostNotification", "com.example.changed"))});
    show();
    tap("a");
    ASSERT_TRUE(fieldOf("a").fieldIsFirstResponder());
    type(fieldOf("a"), "new");
    EXPECT_EQ(written("a"), std::nullopt);
    fieldOf("a").returnPressed();
    EXPECT_EQ(written("a"), PropertyList("new"));
    EXPECT_EQ(Device::current().notifications().take(), Texts{"com.example.changed"});
    EXPECT_FALSE(fieldOf("a").fieldIsFirstResponder());
}

TEST_F(PSEditableTableCellTest, TheSameTextIsNotWritten) {
    writeList({keptRow("PSEditTextCell", "a", text("default", "old"))});
    show();
    tap("a");
    fieldOf("a").returnPressed();
    EXPECT_EQ(written("a"), std::nullopt);
}

TEST_F(PSEditableTableCellTest, ATextThatTheFieldShowsInOneLineIsNotWrittenUnlessItIsEdited) {
    writeList({keptRow("PSEditTextCell", "a", text("default", "one\ntwo"))});
    show();
    ASSERT_NE(fieldOf("a").fieldText(), "one\ntwo");
    tap("a");
    fieldOf("a").returnPressed();
    EXPECT_EQ(written("a"), std::nullopt);
}

TEST_F(PSEditableTableCellTest, ATapOnTheLabelEdits) {
    writeList({keptRow("PSEditTextCell", "a")});
    show();
    Phone::tap(middleOf(cellPeer("a").textLabel()));
    EXPECT_TRUE(fieldOf("a").fieldIsFirstResponder());
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSEditableTableCellTest, LeavingThePageWrites) {
    writeList({keptRow("PSEditTextCell", "a")});
    show();
    tap("a");
    type(fieldOf("a"), "left");
    navigation_->pushViewController(make<UIViewController>(), false);
    settle();
    EXPECT_EQ(written("a"), PropertyList("left"));
}

TEST_F(PSEditableTableCellTest, ASecretIsShownAsBullets) {
    writeList({keptRow("PSSecureEditTextCell", "a", text("default", "abc"))});
    show();
    EXPECT_EQ(fieldOf("a").shownText(), "\u2022\u2022\u2022");
    EXPECT_EQ(elementsOf("a"), Texts{"Row a=\u2022\u2022\u2022"});
    tap("a");
    type(fieldOf("a"), "d");
    fieldOf("a").returnPressed();
    EXPECT_EQ(written("a")->description().size(), 4U);
}

TEST_F(PSEditableTableCellTest, TheListSaysWhichKeysAndCapitalsItWants) {
    using Keys = TextInputTraits::Keys;
    using Capitals = TextInputTraits::Capitals;
    writeList({keptRow("PSEditTextCell", "a", text("keyboard", "numbers")),
               keptRow("PSEditTextCell", "b", yes("isNumeric")),
               keptRow("PSEditTextCell", "c", text("autoCaps", "words")),
               keptRow("PSEditTextCell", "d", text("keyboard", "URL") + text("autoCaps", "sentences"))});
    show();
    EXPECT_EQ(traitsOf(fieldOf("a")), (TextInputTraits{Keys::Numbers, Capitals::None, false}));
    EXPECT_EQ(traitsOf(fieldOf("b")).keys, Keys::Numbers);
    EXPECT_EQ(traitsOf(fieldOf("c")), (TextInputTraits{Keys::Letters, Capitals::Words, false}));
    EXPECT_EQ(traitsOf(fieldOf("d")), (TextInputTraits{Keys::Letters, Capitals::Sentences, false}));
}

TEST_F(PSEditableTableCellTest, ADisabledRowIsNotEdited) {
    writeList({keptRow("PSEditTextCell", "a", no("enabled"))});
    show();
    tap("a");
    EXPECT_FALSE(fieldOf("a").fieldIsFirstResponder());
    peer().setValue(specifier("a"), "set");
    EXPECT_EQ(fieldOf("a").fieldText(), "set");
}

TEST_F(PSEditableTableCellTest, WhatIsTypedOutlastsAChangeElsewhere) {
    writeList({keptRow("PSEditTextCell", "a", text("default", "old"))});
    show();
    tap("a");
    type(fieldOf("a"), "!");
    peer().reloadSpecifier(specifier("a"));
    EXPECT_EQ(fieldOf("a").fieldText(), "old!");
}

TEST_F(PSEditableTableCellTest, IsOneStopWithAName) {
    writeList({keptRow("PSEditTextCell", "a", text("default", "v")),
               text("cell", "PSEditTextCell") + text("id", "b") + text("placeholder", "Search")});
    show();
    EXPECT_EQ(elementsOf("a"), Texts{"Row a=v"});
    EXPECT_EQ(elementsOf("b"), Texts{"Search="});
    EXPECT_EQ(rolesOf("a"), std::vector{AccessibilityRole::TextField});
}

TEST_F(PSEditableTableCellTest, TheEditedRowStaysAboveTheKeyboard) {
    showFields(15);
    tap("14");
    settle();
    ASSERT_TRUE(fieldOf("14").fieldIsFirstResponder());
    EXPECT_EQ(peer().table().contentInset().bottom, 336 - 34);
    EXPECT_LE(CGRectGetMaxY(screenFrame(cell("14"))), 844 - 336);
    EXPECT_GT(CGRectGetMaxY(screenFrame(cell("14"))), 844 - 336 - 60);
    fieldOf("14").returnPressed();
    settle();
    EXPECT_EQ(peer().table().contentInset().bottom, 0);
}

TEST_F(PSEditableTableCellTest, AnotherEditedRowComesOutFromBehindTheKeyboard) {
    showFields(15);
    tap("1");
    settle();
    fieldOf("14").becomeFirstResponder();
    settle();
    EXPECT_LE(CGRectGetMaxY(screenFrame(cell("14"))), 844 - 336);
}
