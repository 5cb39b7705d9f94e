#include "Phone.h"
#include "accessibility/AccessibilityElement.h"
#include "controls/UISegmentedControlPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>

namespace {

/// Three titles of 100 points each, from (20, 100) on.
class UISegmentedControlTest : public Phone {
protected:
    UISegmentedControlTest() {
        window->addSubview(control_);
        control_->setFrame(CGRectMake(20, 100, 300, 32));
        peer().setTitles({"One", "Two", "Three"});
        peer().addHandler(UIControlEvents::ValueChanged, [this] { ++changes_; });
        screen.layoutIfNeeded();
    }

    [[nodiscard]] UISegmentedControlPeer& peer() const { return peerOf<UISegmentedControlPeer>(*control_); }

    [[nodiscard]] static CGPoint middleOf(int index) { return {70 + 100.0 * index, 116}; }

    Ref<UISegmentedControl> control_ = make<UISegmentedControl>();
    int changes_ = 0;
};

} // namespace

TEST_F(UISegmentedControlTest, CodeChoosesAndTellsNobody) {
    EXPECT_EQ(peer().selected(), std::nullopt);
    peer().setSelected(1, false);
    EXPECT_EQ(peer().selected(), 1U);
    peer().setSelected(3, false);
    EXPECT_EQ(peer().selected(), std::nullopt);
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISegmentedControlTest, ATapChoosesAndTellsOnce) {
    tap(middleOf(2));
    EXPECT_EQ(peer().selected(), 2U);
    EXPECT_EQ(changes_, 1);
    tap(middleOf(2));
    EXPECT_EQ(changes_, 1);
}

TEST_F(UISegmentedControlTest, TheChosenOneIsCarriedAlong) {
    peer().setSelected(0, false);
    down(middleOf(0));
    move(middleOf(1));
    EXPECT_EQ(peer().selected(), 1U);
    EXPECT_EQ(changes_, 0);
    move(middleOf(2));
    up(middleOf(2));
    EXPECT_EQ(peer().selected(), 2U);
    EXPECT_EQ(changes_, 1);
}

TEST_F(UISegmentedControlTest, ATouchThatIsTakenAwayChangesNothing) {
    peer().setSelected(0, false);
    down(middleOf(0));
    move(middleOf(2));
    cancel();
    EXPECT_EQ(peer().selected(), 0U);
    down(middleOf(1));
    up({170, 400});
    EXPECT_EQ(peer().selected(), 0U);
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISegmentedControlTest, IsInertWhileItIsDisabled) {
    peer().setEnabled(false);
    tap(middleOf(1));
    EXPECT_EQ(peer().selected(), std::nullopt);
    EXPECT_EQ(control_->layer().peer().number(LayerProperty::Opacity), 0.5);
}

TEST_F(UISegmentedControlTest, NoTitlesTakeATouch) {
    peer().setTitles({});
    tap(middleOf(1));
    EXPECT_EQ(peer().selected(), std::nullopt);
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISegmentedControlTest, EachTitleIsAnElement) {
    peer().setSelected(1, false);
    const auto elements = AccessibilityElement::allIn(*control_);
    ASSERT_EQ(elements.size(), 3U);
    EXPECT_EQ(elements[1].label, "Two");
    EXPECT_EQ(elements[1].value, "1");
    EXPECT_EQ(elements[2].value, "0");
    EXPECT_EQ(elements[2].role, AccessibilityRole::Choice);
}

TEST_F(UISegmentedControlTest, TheChosenTitleStandsOut) {
    peer().setSelected(1, false);
    const auto weightOf = [this](std::size_t index) {
        const auto title = AccessibilityElement::allIn(*control_)[index].view;
        return peerOf<UILabelPeer>(dynamic_cast<UILabel&>(*title)).fontStyle().weight;
    };
    EXPECT_EQ(weightOf(1), FontWeight::Semibold);
    EXPECT_EQ(weightOf(0), FontWeight::Medium);
}

TEST_F(UISegmentedControlTest, WhatIsChosenSlidesThereUnderAShadow) {
    peer().setSelected(0, false);
    const auto isThumb = [](const Ref<UIView>& view) {
        return view->layer().peer().number(LayerProperty::ShadowOpacity) > 0;
    };
    const auto found = std::ranges::find_if(peer().subviews(), isThumb);
    ASSERT_NE(found, peer().subviews().end());
    const auto& thumb = (*found)->layer().peer();
    EXPECT_EQ(thumb.number(LayerProperty::ShadowOpacity), 0.12);
    EXPECT_FALSE(thumb.isAnimating());
    peer().setSelected(2, true);
    EXPECT_EQ((*found)->frame(), CGRectMake(202, 2, 96, 28));
    advance(std::chrono::milliseconds(409));
    EXPECT_TRUE(thumb.isAnimating());
    advance(std::chrono::milliseconds(2));
    EXPECT_FALSE(thumb.isAnimating());
}

TEST_F(UISegmentedControlTest, AreDividedByShortLinesButNotBesideWhatIsChosen) {
    const auto dividers = [this] {
        std::vector<std::pair<CGRect, double>> all; // with how opaque they are
        for (const auto& view : peer().subviews()) {
            if (view->bounds().size.width == 1)
                all.emplace_back(view->frame(), view->layer().peer().number(LayerProperty::Opacity));
        }
        std::ranges::sort(all, {}, [](const auto& divider) { return divider.first.origin.x; });
        return all;
    };
    const auto first = CGRectMake(100, 6, 1, 20);
    const auto second = CGRectMake(200, 6, 1, 20);
    EXPECT_EQ(dividers(), (std::vector{std::pair(first, 1.0), std::pair(second, 1.0)}));
    peer().setSelected(0, false);
    EXPECT_EQ(dividers(), (std::vector{std::pair(first, 0.0), std::pair(second, 1.0)}));
    peer().setSelected(1, false);
    EXPECT_EQ(dividers(), (std::vector{std::pair(first, 0.0), std::pair(second, 0.0)}));
}

TEST_F(UISegmentedControlTest, WhatIsChosenShrinksWhileAFingerHoldsIt) {
    peer().setSelected(0, false);
    const auto widthOfThumb = [this] {
        double width = 0;
        for (const auto& view : peer().subviews()) {
            if (view->layer().peer().number(LayerProperty::ShadowOpacity) > 0)
                width = view->frame().size.width;
        }
        return width;
    };
    EXPECT_EQ(widthOfThumb(), 96);
    down(middleOf(0));
    EXPECT_NEAR(widthOfThumb(), 0.95 * 96, 1e-9);
    up(middleOf(0));
    EXPECT_EQ(widthOfThumb(), 96);
}
