#include "Framework.h"
#include "GlintImageSwitch.h"
#include "Instances.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Lines = std::vector<std::string>;

/// The image switch, as the framework makes and handles it.
class ImageSwitchTest : public testing::Test {
protected:
    ImageSwitchTest() { takeJournal(); }

    ~ImageSwitchTest() override {
        finishAnimations();
        objc_release(control);
    }

    [[nodiscard]] GlintImageSwitch& instance() const {
        return dynamic_cast<GlintImageSwitch&>(*instanceOf(control));
    }

    [[nodiscard]] CGRect thumb() const { return instance().thumbView()->frame(); }

    const id control = newWithFrame("GlintImageSwitch", CGRect());
};

Lines messagesTo(std::string_view receiver) {
    auto lines = takeJournal();
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(receiver); });
    return lines;
}

} // namespace

TEST(ImageSwitchMakingTest, EveryInitialiserMakesTheSwitchWithItsParts) {
    for (const auto make : {+[] { return newByName("GlintImageSwitch"); },
                            +[] { return newWithFrame("GlintImageSwitch", CGRect()); },
                            +[] { return newWithCoder("GlintImageSwitch"); }}) {
        takeJournal();
        auto* const control = make();
        const auto lines = takeJournal();
        EXPECT_EQ(std::ranges::count(lines, "-[GlintImageSwitch addSubview:] UIView"), 2);
        EXPECT_EQ(std::ranges::count(lines, "-[UIView addSubview:] UIImageView"), 3);
        EXPECT_EQ(std::ranges::count(lines, "-[UIView addSubview:] UILabel"), 2);
        EXPECT_EQ(instanceAs<GlintImageSwitch>(control)->bounds().size, (CGSize{50, 30}));
        objc_release(control);
    }
    EXPECT_EQ(aliveOf("GlintImageSwitch"), 0);
    EXPECT_EQ(aliveOf("UIImageView"), 0);
}

TEST_F(ImageSwitchTest, TheThumbsShadowIsSetUpWithTheLayersOwnTypes) {
    auto* const fresh = newWithFrame("GlintImageSwitch", CGRect());
    EXPECT_EQ(messagesTo("-[CALayer setShadow"),
              (Lines{"-[CALayer setShadowColor:] gray", "-[CALayer setShadowRadius:] 2",
                     "-[CALayer setShadowOpacity:] 0.5", "-[CALayer setShadowOffset:] {0, 3}",
                     "-[CALayer setShadowPath:] UIBezierPath"}));
    objc_release(fresh);
}

TEST_F(ImageSwitchTest, AFingerThatCrossesTheMiddleFlipsTheSwitch) {
    EXPECT_TRUE(touchDown(control, 10));
    EXPECT_TRUE(touchMoved(control, 40));
    touchUp(control, 40);
    EXPECT_EQ(messagesTo("-[GlintImageSwitch "),
              (Lines{"-[GlintImageSwitch beginTrackingWithTouch:withEvent:] UITouch UIEvent",
                     "-[GlintImageSwitch continueTrackingWithTouch:withEvent:] UITouch nil",
                     "-[GlintImageSwitch endTrackingWithTouch:withEvent:] UITouch nil",
                     "-[GlintImageSwitch sendActionsForControlEvents:] 4096"}));
    EXPECT_TRUE(instance().isOn());
    EXPECT_EQ(thumb(), CGRectMake(21, 1, 28, 28));
}

TEST_F(ImageSwitchTest, ATouchThatIsTakenAwayChangesNothing) {
    touchDown(control, 10);
    touchMoved(control, 40);
    touchCancelled(control);
    EXPECT_FALSE(instance().isOn());
    EXPECT_EQ(thumb().origin.x, 1);
    EXPECT_TRUE(
        std::ranges::none_of(takeJournal(), [](const auto& line) { return line.contains("sendActions"); }));
}

TEST_F(ImageSwitchTest, TheThumbIsWiderWhileTheControlIsHandled) {
    setTracking(control, true);
    touchDown(control, 10);
    EXPECT_EQ(thumb().size.width, 33);
}

TEST_F(ImageSwitchTest, LayoutIsTheSwitchsAndWaitsForAnimations) {
    instance().setOn(true);
    instance().setFrame(CGRectMake(0, 0, 100, 40));
    touchDown(control, 60);
    layOut(control);
    EXPECT_EQ(thumb().size.height, 28);
    finishAnimations();
    layOut(control);
    EXPECT_EQ(thumb(), CGRectMake(61, 1, 38, 38));
    EXPECT_EQ(messagesTo("-[GlintImageSwitch layoutSubviews]").size(), 2U);
}

TEST_F(ImageSwitchTest, AnAnimationKeepsTheSwitchAliveUntilItIsOver) {
    auto* const other = newWithFrame("GlintImageSwitch", CGRect());
    touchDown(other, 10);
    objc_release(other);
    EXPECT_EQ(aliveOf("GlintImageSwitch"), 2);
    finishAnimations();
    EXPECT_EQ(aliveOf("GlintImageSwitch"), 1);
}

TEST_F(ImageSwitchTest, ATouchWithoutATouchIsNotHandled) {
    perform(control, "cancelTrackingWithEvent:", nullptr);
    EXPECT_EQ(invokeForInteger(control, "beginTrackingWithTouch:withEvent:", nullptr) & 0xFF, 0);
}
