// Classes of the pane's kinds that are derived from the frameworks' buttons and cells, as the frameworks use
// them.

#include "Framework.h"
#include "Instances.h"
#include "Journal.h"
#include "ObjectiveC/Class.h"
#include "Preferences/PSSwitchTableCell.h"
#include "UIKit/UIButton.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class OwnButton final : public UIButton {
public:
    [[nodiscard]] bool initWithFrame(const CGRect& frame) override {
        if (!UIButton::initWithFrame(frame))
            return false;
        setContentVerticalAlignment(UIControlContentVerticalAlignment::Fill);
        return true;
    }

    void tintColorDidChange() override {
        UIButton::tintColorDidChange();
        ++tints;
    }

    void didMoveToSuperview() override {
        UIButton::didMoveToSuperview();
        ++moves;
    }

    int tints = 0;
    int moves = 0;
};

/// Works for both kinds of cells.
template <class Base>
class OwnCell : public Base {
public:
    using Base::initWithStyle;

    [[nodiscard]] bool initWithStyle(UITableViewCellStyle /*style*/,
                                     const std::optional<std::string>& reuseIdentifier,
                                     PSSpecifier& specifier) override {
        if (!Base::initWithStyle(UITableViewCellStyle::Subtitle, reuseIdentifier, specifier))
            return false;
        this->contentView().setTag(5);
        return true;
    }

    void refreshCellContentsWithSpecifier(PSSpecifier& specifier) override {
        Base::refreshCellContentsWithSpecifier(specifier);
        refreshed = &specifier == this->specifier().get();
    }

    bool refreshed = false;
};

class OwnRow final : public OwnCell<PSTableCell> {};

class OwnSwitchRow final : public OwnCell<PSSwitchTableCell> {};

const Class buttonClass = Class::define<OwnButton, UIButton>("OwnButton");
const Class rowClass = Class::define<OwnRow, PSTableCell>("OwnRow");
const Class switchRowClass = Class::define<OwnSwitchRow, PSSwitchTableCell>("OwnSwitchRow");

template <class Row>
void expectAWorkingRow(const std::string& name) {
    auto* const specifier = emptySpecifier();
    takeJournal();
    auto* const object = newCell(name.c_str(), 0, text("row"), specifier);
    const auto row = instanceAs<Row>(object);
    ASSERT_TRUE(row);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[" + name + " initWithStyle:reuseIdentifier:specifier:] 3 \"row\" PSSpecifier",
                     "-[" + name + " initWithStyle:reuseIdentifier:] 3 \"row\"",
                     "-[" + name + " initWithFrame:] {{0, 0}, {0, 0}}",
                     "-[UIView initWithFrame:] {{0, 0}, {320, 44}}", "-[UIView setTag:] 5"}));
    perform(object, "refreshCellContentsWithSpecifier:", specifier);
    EXPECT_TRUE(row->refreshed);
    EXPECT_EQ(takeJournal(), (Lines{"-[" + name + " refreshCellContentsWithSpecifier:] PSSpecifier"}));
    objc_release(object);
}

} // namespace

TEST(DerivedClassesTest, AButton) {
    EXPECT_STREQ(class_getName(class_getSuperclass(objc_getClass("OwnButton"))), "UIButton");
    takeJournal();
    auto* const object = newWithFrame("OwnButton", CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(takeJournal(), (Lines{"-[OwnButton initWithFrame:] {{1, 2}, {3, 4}}",
                                    "-[OwnButton setContentVerticalAlignment:] 3"}));
    const auto button = instanceAs<OwnButton>(object);
    ASSERT_TRUE(button);
    perform(object, "tintColorDidChange", nullptr);
    perform(object, "didMoveToSuperview", nullptr);
    EXPECT_EQ(button->tints, 1);
    EXPECT_EQ(button->moves, 1);
    EXPECT_EQ(takeJournal(), (Lines{"-[OwnButton tintColorDidChange]", "-[OwnButton didMoveToSuperview]"}));
    objc_release(object);
}

TEST(DerivedClassesTest, ARow) {
    expectAWorkingRow<OwnRow>("OwnRow");
    EXPECT_EQ(aliveOf("OwnRow"), 0);
}

TEST(DerivedClassesTest, ARowWithASwitch) {
    expectAWorkingRow<OwnSwitchRow>("OwnSwitchRow");
    EXPECT_EQ(aliveOf("OwnSwitchRow"), 0);
}

TEST(DerivedClassesTest, ARowWithoutASpecifierIsRefused) {
    EXPECT_EQ(newCell("OwnRow", 0, text("row"), nullptr), nullptr);
    EXPECT_EQ(aliveOf("OwnRow"), 0);
}
