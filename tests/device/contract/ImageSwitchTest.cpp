#include "Framework.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// What a fresh switch tells the frameworks, from its views' making to the look of one that is off.
const Lines makingOfASwitch{
    // the track
    "-[UIView initWithFrame:] {{0, 0}, {50, 30}}",
    "-[UIView setBackgroundColor:] clear",
    "-[CALayer setCornerRadius:] 15",
    "-[CALayer setBorderColor:] rgba(0.78, 0.78, 0.8, 1)",
    "-[CALayer setBorderWidth:] 1",
    "-[UIView setUserInteractionEnabled:] 0",
    "-[UIView setClipsToBounds:] 0",
    "-[GlintImageSwitch addSubview:] UIView",
    // what lies on it
    "-[UIImageView initWithFrame:] {{0, 0}, {20, 30}}",
    "-[UIImageView setAlpha:] 1",
    "-[UIImageView setContentMode:] 4",
    "-[UIView addSubview:] UIImageView",
    "-[UIImageView initWithFrame:] {{30, 0}, {20, 30}}",
    "-[UIImageView setAlpha:] 1",
    "-[UIImageView setContentMode:] 4",
    "-[UIView addSubview:] UIImageView",
    "-[UILabel initWithFrame:] {{0, 0}, {20, 30}}",
    "-[UILabel setTextAlignment:] 1",
    "-[UILabel setTextColor:] lightGray",
    "-[UILabel setFont:] 12",
    "-[UIView addSubview:] UILabel",
    "-[UILabel initWithFrame:] {{30, 0}, {20, 30}}",
    "-[UILabel setTextAlignment:] 1",
    "-[UILabel setTextColor:] lightGray",
    "-[UILabel setFont:] 12",
    "-[UIView addSubview:] UILabel",
    // the thumb
    "-[UIView initWithFrame:] {{1, 1}, {28, 28}}",
    "-[UIView setBackgroundColor:] white",
    "-[CALayer setCornerRadius:] 14",
    "-[CALayer setShadowColor:] gray",
    "-[CALayer setShadowRadius:] 2",
    "-[CALayer setShadowOpacity:] 0.5",
    "-[CALayer setShadowOffset:] {0, 3}",
    "+[UIBezierPath bezierPathWithRoundedRect:cornerRadius:] {{0, 0}, {28, 28}} 14",
    "-[CALayer setShadowPath:] UIBezierPath",
    "-[CALayer setMasksToBounds:] 0",
    "-[UIView setUserInteractionEnabled:] 0",
    "-[GlintImageSwitch addSubview:] UIView",
    "-[UIImageView initWithFrame:] {{0, 0}, {28, 28}}",
    "-[UIImageView setContentMode:] 4",
    "-[UIImageView setAutoresizingMask:] 2",
    "-[UIView addSubview:] UIImageView",
    // off
    "-[UIView setFrame:] {{1, 1}, {28, 28}}",
    "-[UIView setBackgroundColor:] clear",
    "-[CALayer setBorderColor:] rgba(0.78, 0.78, 0.8, 1)",
    "-[UIView setBackgroundColor:] white",
    "-[UIImageView setAlpha:] 0",
    "-[UIImageView setAlpha:] 1",
    "-[UILabel setAlpha:] 0",
    "-[UILabel setAlpha:] 1",
};

constexpr auto animation =
    "+[UIView animateWithDuration:delay:options:animations:completion:] 0.3 0 4 completion";

/// The image switch, as the framework makes and handles it.
class ImageSwitchTest : public testing::Test {
protected:
    ImageSwitchTest() { takeJournal(); }

    ~ImageSwitchTest() override {
        finishAnimations();
        objc_release(control);
    }

    [[nodiscard]] id part(const char* name) const { return perform(control, name, nullptr); }

    [[nodiscard]] CGRect thumb() const { return frameOf(part("thumbView")); }

    [[nodiscard]] bool isOn() const { return invokeForBoolean(control, "isOn"); }

    void setOn() const { invokeWithBooleans(control, "setOn:", true, false); }

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
        EXPECT_EQ(boundsOf(control).size, (CGSize{50, 30}));
        objc_release(control);
    }
    EXPECT_EQ(aliveOf("GlintImageSwitch"), 0);
    EXPECT_EQ(aliveOf("UIImageView"), 0);
}

TEST_F(ImageSwitchTest, IsMadeOfItsPartsInOrder) {
    auto* const fresh = newWithFrame("GlintImageSwitch", CGRect());
    auto lines = takeJournal();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "-[GlintImageSwitch initWithFrame:] {{0, 0}, {50, 30}}");
    lines.erase(lines.begin());
    EXPECT_EQ(lines, makingOfASwitch);
    objc_release(fresh);
}

TEST_F(ImageSwitchTest, ItsPartsAreFoundByTheirNames) {
    auto* const track = subviewOf(control, 0);
    EXPECT_EQ(part("backgroundView"), track);
    EXPECT_EQ(part("thumbView"), subviewOf(control, 1));
    EXPECT_EQ(part("onLabel"), subviewOf(track, 2));
    EXPECT_EQ(part("offLabel"), subviewOf(track, 3));
}

TEST_F(ImageSwitchTest, ItsLookChangesOnePartAfterTheOther) {
    setOn();
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UIView setFrame:] {{21, 1}, {28, 28}}",
                     "-[UIView setBackgroundColor:] rgba(0.3, 0.85, 0.39, 1)",
                     "-[CALayer setBorderColor:] rgba(0.3, 0.85, 0.39, 1)",
                     "-[UIView setBackgroundColor:] white", "-[UIImageView setAlpha:] 1",
                     "-[UIImageView setAlpha:] 0", "-[UILabel setAlpha:] 1", "-[UILabel setAlpha:] 0"}));
}

TEST_F(ImageSwitchTest, LayoutPlacesEveryPartAndLeavesTheShadow) {
    setOn();
    setFrameOf(control, CGRectMake(0, 0, 100, 40));
    takeJournal();
    layOut(control);
    EXPECT_EQ(
        takeJournal(),
        (Lines{"-[GlintImageSwitch layoutSubviews]", "-[UIView setFrame:] {{0, 0}, {100, 40}}",
               "-[CALayer setCornerRadius:] 20", "-[UIImageView setFrame:] {{0, 0}, {60, 40}}",
               "-[UILabel setFrame:] {{0, 0}, {60, 40}}", "-[UIImageView setFrame:] {{40, 0}, {60, 40}}",
               "-[UILabel setFrame:] {{40, 0}, {60, 40}}", "-[UIView setFrame:] {{61, 1}, {38, 38}}",
               "-[CALayer setCornerRadius:] 19"}));
}

TEST_F(ImageSwitchTest, OtherCornersComeWithAnotherShadow) {
    invokeWithBooleans(control, "setRounded:", false, false);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[CALayer setCornerRadius:] 2", "-[CALayer setCornerRadius:] 2",
                     "+[UIBezierPath bezierPathWithRoundedRect:cornerRadius:] {{0, 0}, {28, 28}} 2",
                     "-[CALayer setShadowPath:] UIBezierPath"}));
}

TEST_F(ImageSwitchTest, APressWidensTheThumbAndColoursTrackAndThumb) {
    touchDown(control, 10);
    EXPECT_EQ(takeJournal(), (Lines{"-[GlintImageSwitch beginTrackingWithTouch:withEvent:] UITouch UIEvent",
                                    animation, "-[UIView setFrame:] {{1, 1}, {33, 28}}",
                                    "-[UIView setBackgroundColor:] rgba(0.89, 0.89, 0.89, 1)",
                                    "-[UIView setBackgroundColor:] white"}));
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
    EXPECT_TRUE(isOn());
    EXPECT_EQ(thumb(), CGRectMake(21, 1, 28, 28));
}

TEST_F(ImageSwitchTest, EveryMoveStartsTheAnimationAnew) {
    touchDown(control, 10);
    EXPECT_EQ(messagesTo("+[UIView animate"), Lines{animation});
    for (const auto x : {11, 12, 40, 41, 10, 10}) {
        touchMoved(control, x);
        EXPECT_EQ(messagesTo("+[UIView animate"), Lines{animation}) << x;
    }
    touchUp(control, 10);
    EXPECT_EQ(messagesTo("+[UIView animate"), Lines{animation});
}

TEST_F(ImageSwitchTest, ATouchThatIsTakenAwayChangesNothing) {
    touchDown(control, 10);
    touchMoved(control, 40);
    takeJournal();
    touchCancelled(control);
    EXPECT_FALSE(isOn());
    EXPECT_EQ(thumb().origin.x, 1);
    const auto lines = takeJournal();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_TRUE(lines[0].starts_with("-[GlintImageSwitch cancelTrackingWithEvent:]"));
    EXPECT_EQ(lines[1], animation);
    EXPECT_TRUE(std::ranges::none_of(lines, [](const auto& line) { return line.contains("sendActions"); }));
}

TEST_F(ImageSwitchTest, TheThumbIsWiderWhileTheControlIsHandled) {
    setTracking(control, true);
    touchDown(control, 10);
    EXPECT_EQ(thumb().size.width, 33);
}

TEST_F(ImageSwitchTest, LayoutIsTheSwitchsAndWaitsForAnimations) {
    setOn();
    setFrameOf(control, CGRectMake(0, 0, 100, 40));
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
