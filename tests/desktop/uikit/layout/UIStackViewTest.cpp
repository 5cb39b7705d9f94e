#include "UIKit/UIStackView.h"

#include "UIKit/NSLayoutDimension.h"
#include "layout/LayoutFixture.h"
#include "layout/UIStackViewPeer.h"

#include <vector>

namespace {

using Distribution = UIStackViewDistribution;
using Alignment = UIStackViewAlignment;

/// Three views of 20 x 10, 40 x 30 and 60 x 20 points in a stack of the host's size.
class UIStackViewTest : public LayoutFixture {
protected:
    UIStackViewTest() {
        stack->setFrame(CGRectMake(0, 0, 300, 200));
        host->addSubview(stack);
        for (const auto& view : views)
            stack->addArrangedSubview(view);
    }

    [[nodiscard]] UIStackViewPeer& peer() const { return peerOf<UIStackViewPeer>(*stack); }

    [[nodiscard]] std::vector<double> lefts() const { return all(&CGRect::origin, &CGPoint::x); }

    [[nodiscard]] std::vector<double> widths() const { return all(&CGRect::size, &CGSize::width); }

    [[nodiscard]] std::vector<double> tops() const { return all(&CGRect::origin, &CGPoint::y); }

    [[nodiscard]] std::vector<double> heights() const { return all(&CGRect::size, &CGSize::height); }

    Ref<UIStackView> stack = make<UIStackView>();
    std::vector<Ref<SizedView>> views{make<SizedView>(20, 10), make<SizedView>(40, 30),
                                      make<SizedView>(60, 20)};

private:
    template <class Part>
    [[nodiscard]] std::vector<double> all(Part CGRect::* part, double Part::* number) const {
        std::vector<double> numbers;
        numbers.reserve(views.size());
        for (const auto& view : views)
            numbers.push_back(view->frame().*part.*number);
        return numbers;
    }
};

using Numbers = std::vector<double>;

} // namespace

TEST_F(UIStackViewTest, ByDefaultFillsARowAndOfEqualsGrowsTheLast) {
    layOut();
    EXPECT_EQ(lefts(), (Numbers{0, 20, 60}));
    EXPECT_EQ(widths(), (Numbers{20, 40, 240}));
    EXPECT_EQ(tops(), (Numbers{0, 0, 0}));
    EXPECT_EQ(heights(), (Numbers{200, 200, 200}));
}

TEST_F(UIStackViewTest, SpacingLiesBetween) {
    stack->setSpacing(10);
    layOut();
    EXPECT_EQ(widths(), (Numbers{20, 40, 220}));
    EXPECT_EQ(lefts(), (Numbers{0, 30, 80}));
}

TEST_F(UIStackViewTest, AColumnGoesDown) {
    stack->setAxis(UILayoutConstraintAxis::Vertical);
    stack->setSpacing(5);
    layOut();
    EXPECT_EQ(tops(), (Numbers{0, 15, 50}));
    EXPECT_EQ(heights(), (Numbers{10, 30, 150}));
    EXPECT_EQ(widths(), (Numbers{300, 300, 300}));
}

TEST_F(UIStackViewTest, WhatIsTooLargeStaysInTheMiddleAndExtendsBeyondTheStack) {
    stack->setAlignment(Alignment::Center);
    NSLayoutConstraint::activateConstraints({views[0]->heightAnchor()->constraintEqualToConstant(240)});
    layOut();
    EXPECT_EQ(tops(), (Numbers{-20, 85, 90}));
    EXPECT_EQ(heights(), (Numbers{240, 30, 20}));
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(UIStackViewTest, WhatIsTooLongGoesOnBeyondTheEnd) {
    for (const auto& view : views)
        NSLayoutConstraint::activateConstraints({view->widthAnchor()->constraintEqualToConstant(130)});
    layOut();
    EXPECT_EQ(lefts(), (Numbers{0, 130, 260}));
    EXPECT_EQ(widths(), (Numbers{130, 130, 130}));
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(UIStackViewTest, FillEquallyMakesAllOfOneSize) {
    stack->setDistribution(Distribution::FillEqually);
    stack->setSpacing(15);
    layOut();
    EXPECT_EQ(widths(), (Numbers{90, 90, 90}));
    EXPECT_EQ(lefts(), (Numbers{0, 105, 210}));
}

TEST_F(UIStackViewTest, EqualSpacingKeepsTheSizesAndMakesTheGapsEqual) {
    stack->setDistribution(Distribution::EqualSpacing);
    layOut();
    EXPECT_EQ(widths(), (Numbers{20, 40, 60}));
    EXPECT_EQ(lefts(), (Numbers{0, 110, 240}));
}

TEST_F(UIStackViewTest, AlignsAcrossTheAxis) {
    stack->setAlignment(Alignment::Center);
    layOut();
    EXPECT_EQ(tops(), (Numbers{95, 85, 90}));
    EXPECT_EQ(heights(), (Numbers{10, 30, 20}));
    stack->setAlignment(Alignment::Leading);
    layOut();
    EXPECT_EQ(tops(), (Numbers{0, 0, 0}));
    stack->setAlignment(Alignment::Trailing);
    layOut();
    EXPECT_EQ(tops(), (Numbers{190, 170, 180}));
}

TEST_F(UIStackViewTest, HiddenViewsTakeNoRoomNorTheirSpacing) {
    stack->setSpacing(10);
    views[1]->peer().setHidden(true);
    layOut();
    EXPECT_EQ(views[0]->frame(), CGRectMake(0, 0, 20, 200));
    EXPECT_EQ(views[2]->frame(), CGRectMake(30, 0, 270, 200));
    views[1]->peer().setHidden(false);
    layOut();
    EXPECT_EQ(widths(), (Numbers{20, 40, 220}));
}

TEST_F(UIStackViewTest, KeepsToItsMarginsWhenToldTo) {
    stack->setLayoutMargins({.top = 20, .left = 20, .bottom = 20, .right = 20});
    stack->setLayoutMarginsRelativeArrangement(true);
    layOut();
    EXPECT_EQ(lefts(), (Numbers{20, 40, 80}));
    EXPECT_EQ(tops(), (Numbers{20, 20, 20}));
    EXPECT_EQ(heights(), (Numbers{160, 160, 160}));
}

TEST_F(UIStackViewTest, WithoutASizeOfItsOwnItIsAsLargeAsWhatItShows) {
    peer().setFrameGiven(false);
    stack->setSpacing(10);
    stack->setAlignment(Alignment::Center);
    using enum LayoutAttribute;
    equal({*stack, CenterX}, {*host, CenterX});
    equal({*stack, CenterY}, {*host, CenterY});
    layOut();
    EXPECT_EQ(stack->frame(), CGRectMake(80, 85, 140, 30));
    EXPECT_EQ(lefts(), (Numbers{0, 30, 80}));
    EXPECT_EQ(tops(), (Numbers{10, 0, 5}));
}
