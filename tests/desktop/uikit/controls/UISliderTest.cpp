#include "Phone.h"
#include "RectGeometry.h"
#include "controls/UISliderPeer.h"

#include <vector>

namespace {

/// A slider of 228 points in the middle of the screen, so that its thumb has 200 points of way.
class UISliderTest : public Phone {
protected:
    UISliderTest() {
        window->addSubview(slider_);
        slider_->setFrame(CGRectMake(50, 100, 228, 34));
        peer().addHandler(UIControlEvents::ValueChanged, [this] { told_.push_back(peer().value()); });
        screen.layoutIfNeeded();
    }

    [[nodiscard]] UISliderPeer& peer() const { return peerOf<UISliderPeer>(*slider_); }

    /// Where the thumb's middle is when it has gone that part of its way.
    [[nodiscard]] static CGPoint at(double part) { return {64 + part * 200, 117}; }

    Ref<UISlider> slider_ = make<UISlider>();
    std::vector<double> told_;
};

} // namespace

TEST_F(UISliderTest, KeepsItsValueWithinItsRange) {
    peer().setValue(2);
    EXPECT_EQ(peer().value(), 1);
    peer().setRange(10, 20);
    EXPECT_EQ(peer().value(), 10);
    peer().setValue(15);
    EXPECT_EQ(CGRectGetMidX(peer().thumbFrame()), 114);
    peer().setRange(20, 10);
    EXPECT_EQ(peer().value(), 20);
    EXPECT_EQ(CGRectGetMidX(peer().thumbFrame()), 14);
    EXPECT_TRUE(told_.empty());
}

TEST_F(UISliderTest, TellsOfEachMoveOfItsThumb) {
    down(at(0));
    move(at(0.5));
    EXPECT_EQ(told_, std::vector<double>{0.5});
    move(at(3));
    up(at(3));
    EXPECT_EQ(told_, (std::vector<double>{0.5, 1}));
}

TEST_F(UISliderTest, KeepsWhereTheFingerHoldsTheThumb) {
    auto place = at(0);
    place.x += 10;
    down(place);
    place.x += 100;
    move(place);
    EXPECT_EQ(peer().value(), 0.5);
    up(place);
    EXPECT_EQ(told_.size(), 1U);
}

TEST_F(UISliderTest, IsMovedByItsThumbAlone) {
    down(at(0.5));
    move(at(0.9));
    up(at(0.9));
    EXPECT_EQ(peer().value(), 0);
    EXPECT_TRUE(told_.empty());
}

TEST_F(UISliderTest, TellsAtTheEndAloneWhenItIsNotContinuous) {
    peer().setContinuous(false);
    down(at(0));
    move(at(0.25));
    move(at(0.5));
    EXPECT_TRUE(told_.empty());
    up(at(0.5));
    EXPECT_EQ(told_, std::vector<double>{0.5});
}

TEST_F(UISliderTest, ATouchThatIsTakenAwayChangesNothing) {
    peer().setContinuous(false);
    down(at(0));
    move(at(0.5));
    cancel();
    EXPECT_EQ(peer().value(), 0);
    EXPECT_TRUE(told_.empty());
    peer().setContinuous(true);
    down(at(0));
    move(at(0.5));
    cancel();
    EXPECT_EQ(peer().value(), 0);
    EXPECT_EQ(told_, (std::vector<double>{0.5, 0}));
}

TEST_F(UISliderTest, RestsAtTheEndsOfItsSegments) {
    peer().setRange(0, 4);
    peer().setSegmentCount(4);
    down(at(0));
    move(at(0.3));
    EXPECT_EQ(peer().value(), 1);
    move(at(0.9));
    EXPECT_EQ(peer().value(), 4);
    up(at(0.9));
}

TEST_F(UISliderTest, IsAdjustedByStepsUpToItsEnds) {
    peer().adjust(true);
    EXPECT_NEAR(peer().value(), 0.1, 1e-9);
    EXPECT_EQ(told_.size(), 1U);
    peer().adjust(false);
    peer().adjust(false);
    EXPECT_EQ(peer().value(), 0);
    EXPECT_EQ(told_.size(), 2U);
    peer().setRange(0, 3);
    peer().setSegmentCount(3);
    for (auto count = 0; count < 5; ++count)
        peer().adjust(true);
    EXPECT_EQ(peer().value(), 3);
    EXPECT_EQ(told_.size(), 5U);
}

TEST_F(UISliderTest, IsInertWhileItIsDisabled) {
    peer().setEnabled(false);
    down(at(0));
    move(at(0.5));
    up(at(0.5));
    peer().adjust(true);
    EXPECT_EQ(peer().value(), 0);
    EXPECT_TRUE(told_.empty());
    EXPECT_EQ(peer().layer().peer().number(LayerProperty::Opacity), 0.5);
}

TEST_F(UISliderTest, LeavesRoomForItsImages) {
    peer().setImages(UIImage::systemImageNamed("gear"), nullptr);
    screen.layoutIfNeeded();
    EXPECT_EQ(peer().thumbFrame().origin.x, 29);
    peer().setValue(1);
    EXPECT_EQ(CGRectGetMaxX(peer().thumbFrame()), 228);
}

TEST_F(UISliderTest, TellsWhatItIs) {
    peer().setRange(-1, 1);
    peer().setValue(0.5);
    EXPECT_EQ(peer().accessibility().role, AccessibilityRole::Slider);
    EXPECT_EQ(peer().accessibility().value, "75%");
    EXPECT_TRUE(peer().accessibility().isElement);
}

TEST_F(UISliderTest, IsHeldASmallWayBesideItsThumbToo) {
    for (const auto& [beside, held] : {std::pair(21.0, true), std::pair(23.0, false)}) {
        peer().setValue(0.5);
        auto place = at(0.5);
        place.x += beside;
        down(place);
        place.x += 20;
        move(place);
        up(place);
        EXPECT_NEAR(peer().value(), held ? 0.6 : 0.5, 1e-9) << beside;
    }
}

TEST_F(UISliderTest, ItsThumbStandsOutByTwoFaintShadows) {
    const auto& parts = peer().subviews();
    const auto& wide = (*(parts.end() - 2))->layer().peer();
    const auto& narrow = parts.back()->layer().peer();
    for (const auto* const layer : {&wide, &narrow})
        EXPECT_EQ(layer->number(LayerProperty::ShadowOpacity), 0.12);
    EXPECT_EQ(wide.value(LayerProperty::ShadowOffset)[1], 6);
    EXPECT_EQ(wide.number(LayerProperty::ShadowRadius), 6.5);
    EXPECT_EQ(narrow.value(LayerProperty::ShadowOffset)[1], 0.5);
    EXPECT_EQ(narrow.number(LayerProperty::ShadowRadius), 2);
}
