#include "AnimationGroup.h"

#include "CALayerPeer.h"
#include "DeviceTest.h"

#include <chrono>
#include <vector>

namespace {

using namespace std::chrono_literals;

class AnimationGroupTest : public DeviceTest {
protected:
    [[nodiscard]] AnimationGroup::Completion note() {
        return [this](bool finished) { completions_.push_back(finished); };
    }

    void setOpacity(double opacity) { layer_->peer().setNumber(LayerProperty::Opacity, opacity); }

    [[nodiscard]] double shownOpacity() const { return layer_->peer().shownValue(LayerProperty::Opacity)[0]; }

    void animateOpacity(double opacity, AnimationGroup::Course course) {
        AnimationGroup::run(course, [&] { setOpacity(opacity); }, note());
    }

    Ref<CALayer> layer_ = make<CALayer>();
    std::vector<bool> completions_;
};

TEST_F(AnimationGroupTest, CompletesOnceAtTheEnd) {
    animateOpacity(0, {.duration = 1s});
    advance(999ms);
    EXPECT_TRUE(completions_.empty());
    advance(1ms);
    EXPECT_EQ(completions_, std::vector{true});
    advance(5s);
    EXPECT_EQ(completions_.size(), 1U);
}

TEST_F(AnimationGroupTest, CompletesBeforeItReturnsWhenNothingChanged) {
    animateOpacity(1, {.duration = 1s});
    EXPECT_EQ(completions_, std::vector{true});
    advance(5s);
    EXPECT_EQ(completions_.size(), 1U);
}

TEST_F(AnimationGroupTest, ChangesAtOnceAndCompletesBeforeItReturnsWithoutADuration) {
    animateOpacity(0, {});
    EXPECT_EQ(shownOpacity(), 0);
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, NeedsNoCompletion) {
    AnimationGroup::run({.duration = 1s}, [&] { setOpacity(0); }, {});
    advance(2s);
    EXPECT_EQ(shownOpacity(), 0);
}

TEST_F(AnimationGroupTest, WaitsForItsDelay) {
    animateOpacity(0, {.duration = 1s, .delay = 2s, .curve = AnimationCurve::linear()});
    advance(2s);
    EXPECT_EQ(shownOpacity(), 1);
    advance(500ms);
    EXPECT_NEAR(shownOpacity(), 0.5, 1e-6);
    EXPECT_TRUE(completions_.empty());
    advance(500ms);
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, JumpsAfterADelayWhenItHasNoDuration) {
    animateOpacity(0, {.duration = 0s, .delay = 1s});
    advance(999ms);
    EXPECT_EQ(shownOpacity(), 1);
    advance(1ms);
    EXPECT_EQ(shownOpacity(), 0);
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, IsNotFinishedWhenAnotherOneTookItsPlace) {
    animateOpacity(0, {.duration = 1s});
    advance(500ms);
    AnimationGroup::run({.duration = 1s, .fromCurrentState = true}, [&] { setOpacity(0.8); }, {});
    EXPECT_TRUE(completions_.empty());
    advance(0s);
    EXPECT_EQ(completions_, std::vector{false});
    advance(5s);
    EXPECT_EQ(completions_.size(), 1U);
}

TEST_F(AnimationGroupTest, IsNotFinishedWhenOnlyPartOfItRanToItsEnd) {
    const auto other = make<CALayer>();
    const auto changes = [&] {
        setOpacity(0);
        other->peer().setNumber(LayerProperty::Opacity, 0);
    };
    AnimationGroup::run({.duration = 1s}, changes, note());
    layer_->peer().removeAllAnimations();
    advance(500ms);
    EXPECT_TRUE(completions_.empty());
    advance(500ms);
    EXPECT_EQ(completions_, std::vector{false});
}

TEST_F(AnimationGroupTest, IsFinishedWhenAnotherOneRunsOnTopOfIt) {
    animateOpacity(0, {.duration = 1s});
    advance(500ms);
    animateOpacity(1, {.duration = 1s});
    advance(500ms);
    EXPECT_EQ(completions_, std::vector{true});
    advance(500ms);
    EXPECT_EQ(completions_, (std::vector{true, true}));
}

TEST_F(AnimationGroupTest, IsNotFinishedWhenItsLayerIsGone) {
    animateOpacity(0, {.duration = 1s});
    layer_ = nullptr;
    EXPECT_TRUE(completions_.empty());
    advance(0s);
    EXPECT_EQ(completions_, std::vector{false});
}

TEST_F(AnimationGroupTest, IsFinishedWhenItsLayerGoesAfterTheEnd) {
    animateOpacity(0, {.duration = 1s});
    device.clock().moveTo(device.clock().uptime() + 1s);
    layer_ = nullptr;
    advance(0s);
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, RunsNestedOnesWithTheirOwnCourse) {
    const auto other = make<CALayer>();
    AnimationGroup::run(
        {.duration = 2s},
        [&] {
            AnimationGroup::run(
                {.duration = 1s}, [&] { other->peer().setNumber(LayerProperty::Opacity, 0); }, note());
            setOpacity(0);
        },
        note());
    advance(1s);
    EXPECT_EQ(completions_, std::vector{true});
    EXPECT_FALSE(other->peer().isAnimating());
    EXPECT_TRUE(layer_->peer().isAnimating());
    advance(1s);
    EXPECT_EQ(completions_.size(), 2U);
}

TEST_F(AnimationGroupTest, ChangesAtOnceInANestedOneWithoutADuration) {
    const auto other = make<CALayer>();
    AnimationGroup::run(
        {.duration = 2s},
        [&] { AnimationGroup::run({}, [&] { other->peer().setNumber(LayerProperty::Opacity, 0); }, {}); },
        note());
    EXPECT_FALSE(other->peer().isAnimating());
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, AnimatesNothingWhereItIsToldNotTo) {
    AnimationGroup::run(
        {.duration = 1s}, [&] { AnimationGroup::runWithoutAnimation([&] { setOpacity(0); }); }, note());
    EXPECT_EQ(shownOpacity(), 0);
    EXPECT_EQ(completions_, std::vector{true});
}

TEST_F(AnimationGroupTest, RecordsOnlyDuringItsChanges) {
    EXPECT_EQ(AnimationGroup::recording(), nullptr);
    const AnimationGroup* recording = nullptr;
    AnimationGroup::run({.duration = 1s}, [&] { recording = AnimationGroup::recording(); }, {});
    EXPECT_NE(recording, nullptr);
    EXPECT_EQ(AnimationGroup::recording(), nullptr);
}

TEST_F(AnimationGroupTest, MayStartAnotherOneFromItsCompletion) {
    AnimationGroup::run(
        {.duration = 1s}, [&] { setOpacity(0); }, [&](bool) { animateOpacity(1, {.duration = 1s}); });
    advance(1s);
    EXPECT_TRUE(layer_->peer().isAnimating());
    advance(1s);
    EXPECT_EQ(completions_, std::vector{true});
}

} // namespace
