#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "Phone.h"
#include "controls/UISwitchPeer.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

/// A switch at (100, 100), and a finger.
class UISwitchTest : public Phone {
protected:
    UISwitchTest() {
        window->addSubview(switch_);
        peer().sizeToFit();
        switch_->setCenter({125.5, 115.5});
        peer().addHandler(UIControlEvents::ValueChanged, [this] { ++changes_; });
        screen.layoutIfNeeded();
    }

    [[nodiscard]] UISwitchPeer& peer() const { return peerOf<UISwitchPeer>(*switch_); }

    void down(double x) { Phone::down({x, 115}); }

    void move(double x) { Phone::move({x, 115}); }

    void up(double x) { Phone::up({x, 115}); }

    [[nodiscard]] CGRect thumb() const { return peer().subviews().back()->frame(); }

    Ref<UISwitch> switch_ = make<UISwitch>();
    int changes_ = 0;
};

} // namespace

TEST_F(UISwitchTest, HasTheSystemsSize) {
    EXPECT_EQ(switch_->bounds().size, (CGSize{51, 31}));
    EXPECT_EQ(peer().intrinsicWidth(), 49);
    EXPECT_EQ(peer().intrinsicHeight(), 31);
    switch_->setFrame(CGRectMake(10, 20, 200, 5));
    screen.layoutIfNeeded();
    EXPECT_EQ(switch_->frame(), CGRectMake(10, 20, 51, 31));
}

TEST_F(UISwitchTest, ATapTogglesAndTellsOnce) {
    down(110);
    up(110);
    EXPECT_TRUE(peer().isOn());
    EXPECT_EQ(changes_, 1);
    down(110);
    up(110);
    EXPECT_FALSE(peer().isOn());
    EXPECT_EQ(changes_, 2);
}

TEST_F(UISwitchTest, CodeTellsNobody) {
    peer().setOn(true, true);
    peer().setOn(true, false);
    peer().setOn(false, false);
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISwitchTest, TheThumbSlidesAndGrowsUnderTheFinger) {
    EXPECT_EQ(thumb(), CGRectMake(2, 2, 27, 27));
    down(110);
    EXPECT_EQ(thumb(), CGRectMake(2, 2, 34, 27));
    up(110);
    EXPECT_EQ(thumb(), CGRectMake(22, 2, 27, 27));
    const auto& layer = peer().subviews().back()->layer().peer();
    EXPECT_TRUE(layer.isAnimating());
    advance(251ms);
    EXPECT_FALSE(layer.isAnimating());
}

TEST_F(UISwitchTest, ADragPastTheMiddleTogglesOnceOnRelease) {
    down(110);
    move(122);
    EXPECT_FALSE(peer().isOn());
    move(130);
    EXPECT_TRUE(peer().isOn());
    EXPECT_EQ(changes_, 0);
    move(145);
    up(145);
    EXPECT_TRUE(peer().isOn());
    EXPECT_EQ(changes_, 1);
}

TEST_F(UISwitchTest, ADragThereAndBackChangesNothing) {
    down(110);
    move(140);
    move(110);
    up(110);
    EXPECT_FALSE(peer().isOn());
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISwitchTest, ACancelledTouchTakesTheChangeBack) {
    down(110);
    move(140);
    finger.touch(TouchPhase::Cancelled, {140, 115});
    EXPECT_FALSE(peer().isOn());
    EXPECT_EQ(thumb(), CGRectMake(2, 2, 27, 27));
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISwitchTest, ADisabledSwitchIsDimAndInert) {
    peer().setEnabled(false);
    EXPECT_EQ(switch_->layer().peer().number(LayerProperty::Opacity), 0.5);
    down(110);
    up(110);
    EXPECT_FALSE(peer().isOn());
    EXPECT_EQ(changes_, 0);
    peer().setEnabled(true);
    EXPECT_EQ(switch_->layer().peer().number(LayerProperty::Opacity), 1);
}

TEST_F(UISwitchTest, DisablingUnderTheFingerTakesTheChangeBack) {
    down(110);
    move(140);
    peer().setEnabled(false);
    up(140);
    EXPECT_FALSE(peer().isOn());
    EXPECT_EQ(changes_, 0);
}

TEST_F(UISwitchTest, TellsOfItself) {
    peer().setOn(true, false);
    EXPECT_EQ(peer().accessibility().role, AccessibilityRole::Switch);
    EXPECT_EQ(peer().accessibility().value, "1");
    EXPECT_EQ(peer().inspectedProperties().at("on"), PropertyList(true));
}

TEST_F(UISwitchTest, AFingerThatTremblesOnTheMiddleTaps) {
    down(130);
    move(124);
    EXPECT_FALSE(peer().isOn());
    up(124);
    EXPECT_TRUE(peer().isOn());
    EXPECT_EQ(changes_, 1);
}

TEST_F(UISwitchTest, ItsThumbStandsOutByTwoFaintShadows) {
    const auto& parts = peer().subviews();
    const auto& wide = (*(parts.end() - 2))->layer().peer();
    const auto& narrow = parts.back()->layer().peer();
    for (const auto* const layer : {&wide, &narrow})
        EXPECT_EQ(layer->value(LayerProperty::ShadowOffset)[1], 3);
    EXPECT_EQ(wide.number(LayerProperty::ShadowOpacity), 0.15);
    EXPECT_EQ(wide.number(LayerProperty::ShadowRadius), 4);
    EXPECT_EQ(narrow.number(LayerProperty::ShadowOpacity), 0.06);
    EXPECT_EQ(narrow.number(LayerProperty::ShadowRadius), 0.5);
}
