#include "CALayerPeer.h"
#include "GlintImageSwitchFixture.h"
#include "views/UIViewPeer.h"

using GlintImageSwitchTouchTest = GlintImageSwitchFixture;
using std::chrono::milliseconds;

TEST_F(GlintImageSwitchTouchTest, ATapTurnsItOnThenOffWithOneEventEach) {
    tap();
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(events->count, 1);
    EXPECT_EQ(events->lastSender, control);
    EXPECT_EQ(thumbFrame(), restingOn);
    settle();
    tap();
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 2);
    EXPECT_EQ(thumbFrame(), restingOff);
}

TEST_F(GlintImageSwitchTouchTest, AFingerOnASwitchThatIsOffWidensTheThumbAndShowsTheActiveColour) {
    down(40);
    EXPECT_TRUE(control->isTracking());
    EXPECT_EQ(thumbFrame(), pressedOff);
    EXPECT_EQ(trackColor(), control->activeColor());
    EXPECT_EQ(thumbColor(), control->thumbTintColor());
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 0);
}

TEST_F(GlintImageSwitchTouchTest, AFingerOnASwitchThatIsOnWidensTheThumbToTheLeft) {
    control->setOn(true);
    down(10);
    EXPECT_EQ(thumbFrame(), pressedOn);
    EXPECT_EQ(trackColor(), control->onTintColor());
    EXPECT_EQ(thumbColor(), control->onThumbTintColor());
}

TEST_F(GlintImageSwitchTouchTest, APressLeavesTheThumbOfASwitchThatIsOffWhereItIs) {
    control->showOnAnimated(false);
    down(40);
    EXPECT_EQ(thumbFrame(), CGRectMake(restingOn.origin.x, 1, 33, 28));
    EXPECT_EQ(trackColor(), control->activeColor());
}

TEST_F(GlintImageSwitchTouchTest, APressBringsTheThumbOfASwitchThatIsOnToTheRight) {
    control->setOn(true);
    control->showOffAnimated(false);
    down(10);
    EXPECT_EQ(thumbFrame(), pressedOn);
    EXPECT_EQ(trackColor(), control->onTintColor());
    EXPECT_EQ(thumbColor(), control->onThumbTintColor());
}

TEST_F(GlintImageSwitchTouchTest, APressLeavesBorderAndContentsAsTheyAre) {
    down(10);
    EXPECT_TRUE(borderIs(control->borderColor()));
    expectTrackContents(false);
    cancel(10);
    control->setOn(true);
    settle();
    down(10);
    EXPECT_TRUE(borderIs(control->onTintColor()));
    expectTrackContents(true);
}

TEST_F(GlintImageSwitchTouchTest, APressLeavesTheBorderToWhatIsShown) {
    control->showOnAnimated(false); // while its value is off
    down(10);
    EXPECT_TRUE(borderIs(control->onTintColor()));
}

TEST_F(GlintImageSwitchTouchTest, ATouchBeginsFromTheValueWhateverIsShown) {
    control->showOnAnimated(false);
    down(10);
    move(12);
    up(12);
    EXPECT_TRUE(control->isOn()) << "it never crossed the middle, so it was a tap";
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, EveryMoveShowsTheFingersSideAnew) {
    for (const auto x : {40.0, 10.0}) {
        down(x);
        for (auto count = 0; count < 2; ++count) {
            control->thumbView()->setFrame(CGRectMake(10, 1, 20, 28));
            move(x);
            EXPECT_EQ(thumbFrame(), x > 25 ? pressedOn : pressedOff);
            EXPECT_NEAR(shownThumbLeft(), 10, 0.01) << "it goes there, and does not jump";
            settle();
        }
        cancel(x);
        settle();
    }
}

TEST_F(GlintImageSwitchTouchTest, ADragAcrossTheMiddleShowsTheOtherStateAndSendsItsEventAtTheEnd) {
    down(10);
    move(40);
    EXPECT_EQ(thumbFrame(), pressedOn);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 0);
    up(40);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOn);
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, ADragAcrossAndBackLeavesItOffWithoutAnEvent) {
    down(10);
    move(40);
    move(10);
    EXPECT_EQ(thumbFrame(), pressedOff);
    up(10);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOff);
    EXPECT_EQ(events->count, 0);
}

TEST_F(GlintImageSwitchTouchTest, ADragAcrossAndBackLeavesItOnWithoutAnEvent) {
    control->setOn(true);
    down(40);
    move(10);
    EXPECT_EQ(thumbFrame(), pressedOff);
    move(40);
    up(40);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(events->count, 0);
}

TEST_F(GlintImageSwitchTouchTest, TheExactMiddleCountsAsOff) {
    down(10);
    move(25);
    EXPECT_EQ(thumbFrame(), pressedOff);
    move(25.001);
    EXPECT_EQ(thumbFrame(), pressedOn);
    move(25);
    EXPECT_EQ(thumbFrame(), pressedOff);
}

TEST_F(GlintImageSwitchTouchTest, AMoveToTheMiddleTurnsASwitchThatIsOnOff) {
    control->setOn(true);
    down(40);
    move(25);
    up(25);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, ATapAfterADragIsATapAgain) {
    down(10);
    move(40);
    move(10);
    up(10);
    ASSERT_FALSE(control->isOn());
    tap();
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, AMoveWithinTheLeftHalfIsStillATap) {
    down(5);
    move(20);
    move(8);
    up(8);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, AMoveWithinTheRightHalfIsStillATapOnASwitchThatIsOn) {
    control->setOn(true);
    down(45);
    move(30);
    up(30);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, AFingerFarOutsideStillMovesTheThumb) {
    down(10);
    move(180);
    EXPECT_EQ(thumbFrame(), pressedOn);
    up(180);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(events->count, 1);
}

TEST_F(GlintImageSwitchTouchTest, ACancelledTouchBringsTheOldLookBackWithoutAnEvent) {
    for (const auto on : {false, true}) {
        control->setOn(on);
        settle();
        down(on ? 40 : 10);
        move(on ? 10 : 40);
        settle();
        const auto shownBefore = shownThumbLeft();
        cancel(on ? 10 : 40);
        EXPECT_FALSE(control->isTracking());
        EXPECT_EQ(control->isOn(), on);
        EXPECT_EQ(thumbFrame(), on ? restingOn : restingOff);
        EXPECT_EQ(shownThumbLeft(), shownBefore) << "it animates";
        settle();
        EXPECT_EQ(shownThumbLeft(), on ? restingOn.origin.x : restingOff.origin.x);
        EXPECT_EQ(events->count, 0);
    }
}

TEST_F(GlintImageSwitchTouchTest, ItsLookChangesOverThreeTenthsOfASecond) {
    tap();
    EXPECT_EQ(shownThumbLeft(), restingOff.origin.x);
    advance(milliseconds(150));
    EXPECT_NEAR(shownThumbLeft(), (restingOff.origin.x + restingOn.origin.x) / 2, 0.5);
    advance(milliseconds(149));
    EXPECT_LT(shownThumbLeft(), restingOn.origin.x);
    advance(milliseconds(1));
    EXPECT_EQ(shownThumbLeft(), restingOn.origin.x);
}

TEST_F(GlintImageSwitchTouchTest, ANewAnimationStartsFromWhatIsOnScreen) {
    down(10);
    advance(milliseconds(100));
    const auto width = shownThumbWidth();
    EXPECT_GT(width, restingOff.size.width);
    EXPECT_LT(width, pressedOff.size.width);
    move(40);
    EXPECT_EQ(shownThumbLeft(), restingOff.origin.x);
    EXPECT_EQ(shownThumbWidth(), width);
    advance(milliseconds(150));
    const auto left = shownThumbLeft();
    move(10);
    EXPECT_EQ(shownThumbLeft(), left);
    settle();
    EXPECT_EQ(shownThumbLeft(), pressedOff.origin.x);
    EXPECT_EQ(shownThumbWidth(), pressedOff.size.width);
}

TEST_F(GlintImageSwitchTouchTest, LayoutLeavesAPressedThumbAloneUntilItsAnimationHasEnded) {
    down(10);
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), pressedOff);
    settle();
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), restingOff);
}

TEST_F(GlintImageSwitchTouchTest, ASwitchTakenOffTheScreenLosesItsTouch) {
    down(10);
    move(40);
    control->peer().removeFromSuperview();
    settle();
    up(40);
    EXPECT_FALSE(control->isTracking());
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(events->count, 0);
}
