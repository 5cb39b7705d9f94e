#include "GcColorPickerCell.h"

#include "ColorCode.h"
#include "ColorGridPeer.h"
#include "ColorPickerView.h"
#include "ColorSwatch.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "controls/UISliderPeer.h"
#include "system/DarwinNotifications.h"

namespace {

using Texts = std::vector<std::string>;

class GcColorPickerCellTest : public RowsFixture {
protected:
    using RowsFixture::RowsFixture;

    [[nodiscard]] static std::string colorRow(const std::string& id, const std::string& more = {}) {
        return keptRow("PSLinkCell", id, text("cellClass", "GcColorPickerCell") + more);
    }

    [[nodiscard]] std::string shownColor(const std::string& id) const {
        return codeOfColor(viewIn<ColorSwatch>(id).color());
    }

    void open(const std::string& id) {
        tap(id);
        settle();
        ASSERT_NE(sheet(), nullptr);
    }

    void close() {
        sheet()->dismissPresented();
        settle();
    }

    void pressDone() {
        Phone::tap(*elementOnSheet("Done").view);
        settle();
    }

    void setSlider(const std::string& name, bool up) {
        peerIf<UISliderPeer>(*elementOnSheet(name).view)->adjust(up);
    }

    void typeHex(const QString& hex) {
        auto& field = *peerIf<UITextFieldPeer>(*elementOnSheet("Hex Color").view);
        field.becomeFirstResponder();
        field.edit([&hex](EditedText& edited) {
            edited.selectAll();
            edited.insert(hex);
        });
    }
};

class GermanColorPickerCellTest : public GcColorPickerCellTest {
protected:
    GermanColorPickerCellTest() : GcColorPickerCellTest({.locale = "de_DE"}) {}
};

class ForeignColorPickerCellTest : public GcColorPickerCellTest,
                                   public testing::WithParamInterface<const char*> {
protected:
    ForeignColorPickerCellTest() : GcColorPickerCellTest({.locale = GetParam()}) {}
};

} // namespace

TEST_F(GermanColorPickerCellTest, TheSheetIsInGerman) {
    writeList({colorRow("a")});
    show();
    open("a");
    EXPECT_EQ(namesOnSheet(),
              (Texts{"Farben", "Fertig", "Farbe in Hex", "Raster", "Rot", "Grün", "Blau", "Deckkraft"}));
}

TEST_P(ForeignColorPickerCellTest, NothingInTheSheetIsInEnglish) {
    writeList({colorRow("a")});
    show();
    open("a");
    ASSERT_EQ(namesOnSheet().size(), 8U);
    for (const auto& name : namesOnSheet())
        EXPECT_EQ(name.find_first_of("abcdefghijklmnopqrstuvwxyz"), std::string::npos) << name;
}

INSTANTIATE_TEST_SUITE_P(Languages, ForeignColorPickerCellTest, testing::Values("ar_EG", "he_IL"));

TEST_F(GcColorPickerCellTest, ShowsTheColour) {
    writeList({colorRow("a", text("default", "ff0000")), colorRow("b", text("fallback", "00ff0080")),
               colorRow("c"), colorRow("d", text("default", "no colour")),
               colorRow("e", value("default", "<integer>3</integer>"))});
    show();
    EXPECT_EQ(shownColor("a"), "ff0000ff");
    EXPECT_EQ(shownColor("b"), "00ff0080");
    EXPECT_EQ(shownColor("c"), "00000000");
    EXPECT_EQ(shownColor("d"), "00000000");
    EXPECT_EQ(shownColor("e"), "00000000");
    EXPECT_EQ(elementsOf("a"), Texts{"Row a=ff0000ff"});
    EXPECT_EQ(CGRectGetMaxX(viewIn<ColorSwatch>("a").frame()), 342);
}

TEST_F(GcColorPickerCellTest, ATapOpensASheetThatSavesAsItIsLeft) {
    writeList({colorRow("a", text("default", "ff0000ff") + text("PostNotification", "com.example.changed"))});
    show();
    open("a");
    EXPECT_EQ(sheet()->title(), "Colors");
    Phone::tap(*elementOnSheet("Grid").view);
    EXPECT_EQ(written("a"), std::nullopt);
    close();
    const auto middle = ColorGridPeer::colorAt(ColorGridPeer::columns / 2, ColorGridPeer::lines / 2);
    EXPECT_EQ(written("a"), PropertyList(codeOfColor(middle)));
    EXPECT_EQ(shownColor("a"), codeOfColor(middle));
    EXPECT_EQ(Device::current().notifications().take(), Texts{"com.example.changed"});
}

TEST_F(GcColorPickerCellTest, NothingChosenIsNothingWritten) {
    writeList({colorRow("a", text("default", "ff0000ff"))});
    show();
    open("a");
    pressDone();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(written("a"), std::nullopt);
}

TEST_F(GcColorPickerCellTest, ASheetThatIsNotSafeOnDismissSavesByItsButtonAlone) {
    writeList({colorRow("a", text("default", "ff0000ff") + no("safeOnDismiss"))});
    show();
    open("a");
    setSlider("Red", false);
    close();
    EXPECT_EQ(written("a"), std::nullopt);
    open("a");
    setSlider("Opacity", false);
    pressDone();
    EXPECT_EQ(written("a"), PropertyList("ff0000e6"));
}

TEST_F(GcColorPickerCellTest, TheSlidersSetThePartsOfAColour) {
    writeList({colorRow("a", text("default", "000000ff"))});
    show();
    open("a");
    setSlider("Green", true);
    setSlider("Blue", true);
    setSlider("Blue", true);
    close();
    EXPECT_EQ(written("a"), PropertyList("001a33ff"));
}

TEST_F(GcColorPickerCellTest, HexDigitsThatAreTypedCount) {
    writeList({colorRow("a")});
    show();
    open("a");
    typeHex("#12345678");
    pressDone();
    EXPECT_EQ(written("a"), PropertyList("12345678"));
}

TEST_F(GcColorPickerCellTest, WhatIsTypedAndNoColourIsPutBack) {
    writeList({colorRow("a", text("default", "ff0000ff"))});
    show();
    open("a");
    typeHex("red");
    peerIf<UITextFieldPeer>(*elementOnSheet("Hex Color").view)->returnPressed();
    EXPECT_EQ(elementOnSheet("Hex Color").value, "ff0000ff");
    close();
    EXPECT_EQ(written("a"), std::nullopt);
}

TEST_F(GcColorPickerCellTest, WithoutOpacityThereIsNoSliderForIt) {
    writeList({colorRow("a", text("default", "ff000080") + no("supportsAlpha"))});
    show();
    open("a");
    setSlider("Red", false);
    const auto all = AccessibilityElement::allIn(sheet()->shownView());
    EXPECT_TRUE(std::ranges::none_of(all, [](const auto& found) { return found.label == "Opacity"; }));
    close();
    EXPECT_EQ(written("a"), PropertyList("e60000ff"));
}

TEST_F(GcColorPickerCellTest, IsSetByScripts) {
    writeList({colorRow("a")});
    show();
    peer().setValue(specifier("a"), "0000ffff");
    EXPECT_EQ(shownColor("a"), "0000ffff");
}

TEST_F(GcColorPickerCellTest, ADisabledRowOpensNothing) {
    writeList({colorRow("a", no("enabled"))});
    show();
    tap("a");
    settle();
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(GcColorPickerCellTest, OutlivesItsPage) {
    writeList({colorRow("a")});
    show();
    open("a");
    setSlider("Red", true);
    page_ = nullptr;
    navigation_ = nullptr;
    Phone::show(make<UIViewController>());
    settle();
}
