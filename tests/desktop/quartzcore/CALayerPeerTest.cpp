#include "CALayerPeer.h"

#include "AnimationGroup.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using namespace std::chrono_literals;

class CALayerPeerTest : public testing::Test {
protected:
    void pass(std::chrono::nanoseconds duration) { device_.advance(duration); }

    static void animate(AnimationGroup::Course course, const std::function<void()>& changes) {
        course.curve = AnimationCurve::linear();
        AnimationGroup::run(course, changes, {});
    }

    [[nodiscard]] double shownX() const { return peer().shownValue(LayerProperty::Position)[0]; }

    [[nodiscard]] CALayerPeer& peer() const { return layer_->peer(); }

    TestDevice device_;
    Ref<CALayer> layer_ = make<CALayer>();
};

std::vector<CALayer*> sublayersOf(const CALayer& layer) {
    std::vector<CALayer*> found;
    for (const auto& sublayer : layer.peer().sublayers())
        found.push_back(sublayer.get());
    return found;
}

TEST_F(CALayerPeerTest, KeepsSublayersInTheirPlaces) {
    const auto first = make<CALayer>();
    const auto second = make<CALayer>();
    const auto third = make<CALayer>();
    peer().addSublayer(second);
    peer().insertSublayer(first, 0);
    peer().insertSublayer(third, 99);
    EXPECT_EQ(sublayersOf(*layer_), (std::vector{first.get(), second.get(), third.get()}));
    peer().insertSublayer(first, 1);
    EXPECT_EQ(sublayersOf(*layer_), (std::vector{second.get(), first.get(), third.get()}));
    EXPECT_EQ(first->peer().superlayer(), layer_.get());
}

TEST_F(CALayerPeerTest, TakesASublayerAwayFromItsSuperlayer) {
    const auto other = make<CALayer>();
    const auto sublayer = make<CALayer>();
    other->peer().addSublayer(sublayer);
    peer().addSublayer(sublayer);
    EXPECT_TRUE(other->peer().sublayers().empty());
    EXPECT_EQ(sublayer->peer().superlayer(), layer_.get());
    sublayer->peer().removeFromSuperlayer();
    EXPECT_EQ(sublayer->peer().superlayer(), nullptr);
    sublayer->peer().removeFromSuperlayer();
    EXPECT_TRUE(peer().sublayers().empty());
}

TEST_F(CALayerPeerTest, LeavesSublayersWithoutASuperlayerWhenItGoes) {
    const auto sublayer = make<CALayer>();
    peer().addSublayer(sublayer);
    layer_ = nullptr;
    EXPECT_EQ(sublayer->peer().superlayer(), nullptr);
}

TEST_F(CALayerPeerTest, HasANumberOfItsOwn) {
    EXPECT_NE(make<CALayer>()->peer().identity(), peer().identity());
}

TEST_F(CALayerPeerTest, GivesAndTakesFrames) {
    peer().setFrame(CGRectMake(10, 20, 30, 40));
    EXPECT_EQ(peer().frame(), CGRectMake(10, 20, 30, 40));
    EXPECT_EQ(peer().position(), (CGPoint{25, 40}));
    EXPECT_EQ(peer().bounds(), CGRectMake(0, 0, 30, 40));
}

TEST_F(CALayerPeerTest, HasAFrameAroundItsScaledBounds) {
    peer().setFrame(CGRectMake(0, 0, 20, 20));
    peer().setTransform(AffineTransform::scale(2));
    EXPECT_EQ(peer().frame(), CGRectMake(-10, -10, 40, 40));
    peer().setFrame(CGRectMake(10, 10, 80, 80));
    EXPECT_EQ(peer().frame(), CGRectMake(10, 10, 80, 80));
    EXPECT_EQ(peer().bounds(), CGRectMake(0, 0, 40, 40));
}

TEST_F(CALayerPeerTest, MapsItsBoundsOriginToItsFramesCorner) {
    peer().setFrame(CGRectMake(10, 20, 30, 40));
    peer().setBoundsOrigin({5, 7});
    EXPECT_EQ(peer().toSuperlayer()(CGPoint{5, 7}), (CGPoint{10, 20}));
}

TEST_F(CALayerPeerTest, ShowsAnAnimatedValueOnItsWay) {
    animate({.duration = 1s}, [&] { peer().setPosition({100, 0}); });
    EXPECT_EQ(peer().position(), (CGPoint{100, 0}));
    EXPECT_EQ(shownX(), 0);
    pass(250ms);
    EXPECT_NEAR(shownX(), 25, 1e-6);
    EXPECT_TRUE(peer().isAnimating());
    pass(750ms);
    EXPECT_EQ(shownX(), 100);
    EXPECT_FALSE(peer().isAnimating());
}

TEST_F(CALayerPeerTest, BlendsAnAnimationIntoTheOneThatStillRuns) {
    animate({.duration = 1s}, [&] { peer().setPosition({100, 0}); });
    pass(500ms);
    animate({.duration = 1s}, [&] { peer().setPosition({0, 0}); });
    EXPECT_NEAR(shownX(), 50, 1e-6);
    pass(250ms);
    EXPECT_NEAR(shownX(), 50, 1e-6); // forth by 25 more, back by 25
    pass(750ms);
    EXPECT_NEAR(shownX(), 0, 1e-6);
}

TEST_F(CALayerPeerTest, BeginsFromWhatIsShownWhenToldTo) {
    animate({.duration = 1s}, [&] { peer().setPosition({100, 0}); });
    pass(500ms);
    animate({.duration = 1s, .fromCurrentState = true}, [&] { peer().setPosition({0, 0}); });
    EXPECT_NEAR(shownX(), 50, 1e-6);
    pass(250ms);
    EXPECT_NEAR(shownX(), 37.5, 1e-6);
}

TEST_F(CALayerPeerTest, ReplacesOnlyTheAnimationsOfTheSameProperty) {
    animate({.duration = 1s}, [&] {
        peer().setPosition({100, 0});
        peer().setNumber(LayerProperty::Opacity, 0);
    });
    pass(500ms);
    animate({.duration = 1s, .fromCurrentState = true}, [&] { peer().setPosition({0, 0}); });
    pass(250ms);
    EXPECT_NEAR(peer().shownValue(LayerProperty::Opacity)[0], 0.25, 1e-6);
}

TEST_F(CALayerPeerTest, MovesWhatIsShownWhenAValueIsSetDuringAnAnimation) {
    animate({.duration = 1s}, [&] { peer().setPosition({100, 0}); });
    pass(500ms);
    peer().setPosition({200, 0});
    EXPECT_NEAR(shownX(), 150, 1e-6);
}

TEST_F(CALayerPeerTest, EndsTheAnimationsOfAllWithinItWhenItIsTakenAway) {
    const auto sublayer = make<CALayer>();
    const auto root = make<CALayer>();
    root->peer().addSublayer(layer_);
    peer().addSublayer(sublayer);
    animate({.duration = 1s}, [&] { sublayer->peer().setPosition({100, 0}); });
    peer().removeFromSuperlayer();
    EXPECT_FALSE(sublayer->peer().isAnimating());
    EXPECT_EQ(sublayer->peer().shownValue(LayerProperty::Position)[0], 100);
}

TEST_F(CALayerPeerTest, GoesOnAnimatingWhenItIsMovedAmongItsSiblings) {
    const auto sibling = make<CALayer>();
    const auto root = make<CALayer>();
    root->peer().addSublayer(layer_);
    root->peer().addSublayer(sibling);
    animate({.duration = 1s}, [&] { peer().setPosition({100, 0}); });
    root->peer().insertSublayer(layer_, 1);
    EXPECT_TRUE(peer().isAnimating());
}

TEST_F(CALayerPeerTest, StartsWithThePlatformsLooks) {
    EXPECT_EQ(peer().number(LayerProperty::Opacity), 1);
    EXPECT_EQ(peer().number(LayerProperty::ShadowOpacity), 0);
    EXPECT_EQ(peer().number(LayerProperty::ShadowRadius), 3);
    EXPECT_EQ(peer().value(LayerProperty::ShadowOffset)[1], -3);
    EXPECT_EQ(peer().color(LayerProperty::BorderColor), ColorComponents());
    EXPECT_EQ(peer().color(LayerProperty::BackgroundColor).alpha, 0);
    EXPECT_FALSE(peer().masksToBounds);
}

} // namespace
