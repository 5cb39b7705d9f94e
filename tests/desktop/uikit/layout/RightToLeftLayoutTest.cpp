// Constraints and stacks where the device's language is read from right to left.

#include "UIKit/UIStackView.h"
#include "layout/LayoutFixture.h"
#include "layout/UIStackViewPeer.h"

#include <optional>
#include <vector>

namespace {

using enum LayoutAttribute;

class RightToLeftLayoutTest : public LayoutFixture {
protected:
    RightToLeftLayoutTest() {
        host->peer().setTraitOverride([](Traits& traits) { traits.rightToLeft = true; });
    }

    /// Three views of 20, 40 and 60 points side by side in all of the host.
    Ref<UIStackView> stackOfThree() {
        auto stack = make<UIStackView>();
        stack->setFrame(CGRectMake(0, 0, 300, 200));
        host->addSubview(stack);
        for (const auto width : {20, 40, 60})
            stack->addArrangedSubview(make<SizedView>(width, 10));
        return stack;
    }

    [[nodiscard]] static std::vector<double> lefts(const UIStackView& stack) {
        std::vector<double> lefts;
        for (const auto& view : stack.peer().subviews())
            lefts.push_back(view->frame().origin.x);
        return lefts;
    }
};

} // namespace

TEST_F(RightToLeftLayoutTest, TheLeadingEdgeIsTheRightOneAndConstantsLeadOnFromIt) {
    const auto view = add(50, 30);
    equal({*view, Leading}, {*host, Leading}, 20);
    equal({*view, Top}, {*host, Top}, 7);
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(230, 7, 50, 30));
}

TEST_F(RightToLeftLayoutTest, TheTrailingEdgeIsTheLeftOne) {
    const auto view = add(50, 30);
    equal({*view, Trailing}, {*host, Trailing}, -4);
    equal({*view, CenterY}, {*host, CenterY});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(4, 85, 50, 30));
}

TEST_F(RightToLeftLayoutTest, MiddlesAndLengthsAreAsEverywhere) {
    const auto view = add(std::nullopt, 30);
    equal({*view, CenterX}, {*host, CenterX});
    equal({*view, Width}, 100);
    equal({*view, Top}, {*host, Top});
    const auto other = add(20, 30);
    equal({*other, Leading}, {*view, CenterX}, 10);
    equal({*other, Top}, {*host, Top});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(100, 0, 100, 30));
    EXPECT_EQ(other->frame(), CGRectMake(120, 0, 20, 30));
}

TEST_F(RightToLeftLayoutTest, AStackBeginsAtTheRight) {
    const auto stack = stackOfThree();
    stack->setSpacing(10);
    stack->setDistribution(UIStackViewDistribution::EqualSpacing);
    stack->setAlignment(UIStackViewAlignment::Center);
    layOut();
    EXPECT_EQ(lefts(*stack), (std::vector<double>{280, 150, 0}));
}

TEST_F(RightToLeftLayoutTest, WhatIsBelowEachOtherIsAlignedAtTheRight) {
    const auto stack = stackOfThree();
    stack->setAxis(UILayoutConstraintAxis::Vertical);
    stack->setAlignment(UIStackViewAlignment::Leading);
    layOut();
    EXPECT_EQ(lefts(*stack), (std::vector<double>{280, 260, 240}));
    stack->setAlignment(UIStackViewAlignment::Trailing);
    layOut();
    EXPECT_EQ(lefts(*stack), (std::vector<double>{0, 0, 0}));
}
