#include "GlintImageSwitchFixture.h"

#include <string>
#include <tuple>

namespace {

/// A state that a colour is set in: on or off, with a finger on the switch or none, after a colour of the
/// thumb that is on has been set or not.
using State = std::tuple<bool, bool, bool>;

std::string nameOfState(const testing::TestParamInfo<State>& info) {
    const auto [on, tracking, thumbColorSet] = info.param;
    return std::string(on ? "On" : "Off") + (tracking ? "Tracking" : "Resting") +
           (thumbColorSet ? "WithOnThumb" : "");
}

/// What each colour's setter repaints, in every state.
class GlintImageSwitchLookTest : public GlintImageSwitchFixture, public testing::WithParamInterface<State> {
protected:
    GlintImageSwitchLookTest() {
        if (thumbColorSet)
            control->setOnThumbTintColor(UIColor::lightGrayColor());
        control->setOn(on);
        if (tracking)
            down(on ? 40 : 10);
        settle();
        EXPECT_EQ(control->isTracking(), tracking);
        trackBefore = trackColor();
        thumbBefore = thumbColor();
        borderBefore = on ? control->onTintColor() : control->borderColor();
        shadowBefore = control->shadowColor();
    }

    /// What the track, its border, the thumb and the thumb's shadow show afterwards: the new colour, or still
    /// the old one.
    void expectNew(bool track, bool border, bool thumb, bool shadow) {
        EXPECT_EQ(trackColor(), track ? color : trackBefore);
        EXPECT_TRUE(borderIs(border ? color : borderBefore));
        EXPECT_EQ(thumbColor(), thumb ? color : thumbBefore);
        EXPECT_TRUE(shadowIs(shadow ? color : shadowBefore));
    }

    const bool on = std::get<0>(GetParam());
    const bool tracking = std::get<1>(GetParam());
    const bool thumbColorSet = std::get<2>(GetParam());
    const bool resting = !tracking;
    const Ref<UIColor> color = UIColor::colorWithRed(0.1, 0.2, 0.3, 1);
    Ref<UIColor> trackBefore;
    Ref<UIColor> thumbBefore;
    Ref<UIColor> borderBefore;
    Ref<UIColor> shadowBefore;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(AllStates, GlintImageSwitchLookTest,
                         testing::Combine(testing::Bool(), testing::Bool(), testing::Bool()), nameOfState);

TEST_P(GlintImageSwitchLookTest, TheActiveColourRepaintsTheTrackOfARestingSwitchThatIsOn) {
    control->setActiveColor(color);
    EXPECT_EQ(control->activeColor(), color);
    expectNew(on && resting, false, false, false);
}

TEST_P(GlintImageSwitchLookTest, TheInactiveColourRepaintsTheTrackOfARestingSwitchThatIsOff) {
    control->setInactiveColor(color);
    EXPECT_EQ(control->inactiveColor(), color);
    expectNew(!on && resting, false, false, false);
}

TEST_P(GlintImageSwitchLookTest, TheOnTintRepaintsTrackAndBorderOfARestingSwitchThatIsOn) {
    control->setOnTintColor(color);
    EXPECT_EQ(control->onTintColor(), color);
    expectNew(on && resting, on && resting, false, false);
}

TEST_P(GlintImageSwitchLookTest, TheBorderColourRepaintsTheBorderOfASwitchThatIsOffTouchedOrNot) {
    control->setBorderColor(color);
    EXPECT_EQ(control->borderColor(), color);
    expectNew(false, !on, false, false);
}

TEST_P(GlintImageSwitchLookTest, TheThumbTintStandsForBothStatesUntilTheOtherHasItsOwn) {
    const auto onThumbBefore = control->onThumbTintColor();
    control->setThumbTintColor(color);
    EXPECT_EQ(control->thumbTintColor(), color);
    EXPECT_EQ(control->onThumbTintColor(), thumbColorSet ? onThumbBefore : color);
    expectNew(false, false, resting && !(thumbColorSet && on), false);
}

TEST_P(GlintImageSwitchLookTest, TheOnThumbTintRepaintsTheThumbOfARestingSwitchThatIsOn) {
    control->setOnThumbTintColor(color);
    EXPECT_EQ(control->onThumbTintColor(), color);
    expectNew(false, false, on && resting, false);
    control->setThumbTintColor(UIColor::blackColor());
    EXPECT_EQ(control->onThumbTintColor(), color) << "it has been set, so it no longer follows";
}

TEST_P(GlintImageSwitchLookTest, TheShadowColourAlwaysRepaintsTheShadow) {
    control->setShadowColor(color);
    EXPECT_EQ(control->shadowColor(), color);
    expectNew(false, false, false, true);
}

TEST_P(GlintImageSwitchLookTest, ABorderColourThatWasNotShownShowsOnceTheSwitchIsOff) {
    control->setBorderColor(color);
    control->setOn(false);
    EXPECT_TRUE(borderIs(color));
}

TEST_P(GlintImageSwitchLookTest, ShowingTheOnStateAppliesTheWholeLook) {
    control->showOnAnimated(false);
    EXPECT_EQ(thumbFrame(), tracking ? pressedOn : restingOn);
    EXPECT_EQ(trackColor(), control->onTintColor());
    EXPECT_TRUE(borderIs(control->onTintColor()));
    EXPECT_EQ(thumbColor(), control->onThumbTintColor());
    expectTrackContents(true);
}

TEST_P(GlintImageSwitchLookTest, ShowingTheOffStateAppliesTheWholeLook) {
    control->showOffAnimated(false);
    EXPECT_EQ(thumbFrame(), tracking ? pressedOff : restingOff);
    EXPECT_EQ(trackColor(), tracking ? control->activeColor() : control->inactiveColor());
    EXPECT_TRUE(borderIs(control->borderColor()));
    EXPECT_EQ(thumbColor(), control->thumbTintColor());
    expectTrackContents(false);
}
