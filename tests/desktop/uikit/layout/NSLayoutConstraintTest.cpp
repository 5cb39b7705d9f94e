#include "LayoutCounter.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UILabel.h"
#include "UIKit/UILayoutGuide.h"
#include "layout/LayoutFixture.h"
#include "views/UILabelPeer.h"

using NSLayoutConstraintTest = LayoutFixture;
using enum LayoutAttribute;

TEST_F(NSLayoutConstraintTest, FourEdgesPlaceAView) {
    const auto view = add();
    fill(*view, 12);
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(12, 12, 276, 176));
}

TEST_F(NSLayoutConstraintTest, AViewFollowsItsHostsSize) {
    const auto view = add();
    fill(*view);
    layOut();
    host->setFrame(CGRectMake(0, 0, 50, 60));
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(0, 0, 50, 60));
}

TEST_F(NSLayoutConstraintTest, CentreAndSizePlaceAView) {
    const auto view = add();
    equal({*view, CenterX}, {*host, CenterX});
    equal({*view, CenterY}, {*host, CenterY}, 10);
    equal({*view, Width}, 100);
    constrain({.first = {*view, Height}, .second = LayoutAnchor(*view, Width), .factor = 0.5, .constant = 4});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(100, 83, 100, 54));
}

TEST_F(NSLayoutConstraintTest, TheIntrinsicSizeFillsWhatIsNotSaid) {
    const auto view = add(40, 30);
    equal({*view, Trailing}, {*host, Trailing}, -4);
    equal({*view, CenterY}, {*host, CenterY});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(256, 85, 40, 30));
    view->setIntrinsicWidth(60);
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(236, 85, 60, 30));
}

TEST_F(NSLayoutConstraintTest, OfTwoInTooMuchRoomTheOneThatHugsLessGrows) {
    const auto first = add(40, 20);
    const auto second = add(40, 20);
    equal({*first, Leading}, {*host, Leading});
    equal({*second, Leading}, {*first, Trailing});
    equal({*second, Trailing}, {*host, Trailing});
    first->peer().layoutRules().horizontal.hugging = 251;
    layOut();
    EXPECT_EQ(first->frame().size.width, 40);
    EXPECT_EQ(second->frame().size.width, 260);
    first->peer().layoutRules().horizontal.hugging = 249;
    first->peer().setNeedsConstraintLayout();
    layOut();
    EXPECT_EQ(first->frame().size.width, 260);
}

TEST_F(NSLayoutConstraintTest, OfTwoInTooLittleRoomTheOneThatResistsLessShrinks) {
    const auto first = add(200, 20);
    const auto second = add(200, 20);
    equal({*first, Leading}, {*host, Leading});
    equal({*second, Leading}, {*first, Trailing});
    equal({*second, Trailing}, {*host, Trailing});
    first->peer().layoutRules().horizontal.compression = 749;
    layOut();
    EXPECT_EQ(first->frame().size.width, 100);
    EXPECT_EQ(second->frame().size.width, 200);
}

TEST_F(NSLayoutConstraintTest, AWeakerConstraintGivesWay) {
    const auto view = add();
    equal({*view, Leading}, {*host, Leading});
    constrain({.first = {*view, Width}, .relation = LinearRelation::LessOrEqual, .constant = 80});
    constrain({.first = {*view, Width}, .constant = 500, .priority = 750});
    constrain({.first = {*view, Width}, .constant = 10, .priority = 749});
    layOut();
    EXPECT_EQ(view->frame().size.width, 80);
}

TEST_F(NSLayoutConstraintTest, PlacesGoThroughTheViewsBetween) {
    const auto outer = add();
    fill(*outer, 20);
    const auto inner = addTo(*outer);
    equal({*inner, Leading}, {*host, Leading}, 50);
    equal({*inner, Top}, {*outer, Top}, 5);
    equal({*inner, Width}, 10);
    equal({*inner, Height}, 10);
    layOut();
    EXPECT_EQ(inner->frame(), CGRectMake(30, 5, 10, 10));
}

TEST_F(NSLayoutConstraintTest, AViewWithAFrameOfItsOwnIsAnAnchorThatDoesNotMove) {
    const auto given = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(30, 40, 50, 60));
    host->addSubview(given);
    const auto view = add(10, 10);
    equal({*view, Leading}, {*given, Trailing}, 8);
    equal({*view, CenterY}, {*given, CenterY});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(88, 65, 10, 10));
    EXPECT_EQ(given->frame(), CGRectMake(30, 40, 50, 60));
}

TEST_F(NSLayoutConstraintTest, TheSafeAreaAndTheMarginsAreAnchorsToo) {
    host->peer().setAdditionalSafeAreaInsets({.top = 44, .left = 0, .bottom = 30, .right = 0});
    host->peer().layoutRules().margins = {.top = 0, .left = 16, .bottom = 0, .right = 20};
    const auto view = add();
    equal({*view, Top}, {*host, Top, LayoutGuide::SafeArea});
    equal({*view, Bottom}, {*host, Bottom, LayoutGuide::SafeArea});
    equal({*view, Leading}, {*host, Leading, LayoutGuide::Margins});
    equal({*view, Trailing}, {*host, Trailing, LayoutGuide::Margins});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(16, 44, 264, 126));
}

TEST_F(NSLayoutConstraintTest, FramesLieOnPixels) {
    const auto view = add();
    equal({*view, Leading}, {*host, Leading}, 1.3);
    equal({*view, Width}, 10.1);
    layOut();
    EXPECT_EQ(view->frame().origin.x, 1.5);
    EXPECT_EQ(view->frame().size.width, 10);
}

TEST_F(NSLayoutConstraintTest, WhatIsWholePixelsWideStaysSoInTheMiddleBetweenTwo) {
    host->peer().setTraitOverride([](Traits& traits) { traits.displayScale = 3; });
    const auto width = 404 / 3.0;
    const auto view = add();
    equal({*view, Width}, width);
    equal({*view, CenterX}, {*host, CenterX});
    for (auto hostPixels = 405; hostPixels < 1500; hostPixels += 2) {
        host->setFrame(CGRectMake(0, 0, hostPixels / 3.0, 200));
        layOut();
        EXPECT_NEAR(view->frame().size.width, width, 1e-9) << hostPixels;
    }
}

TEST_F(NSLayoutConstraintTest, AContradictionIsLoggedAndTheRestHolds) {
    const auto view = add();
    fill(*view);
    equal({*view, Width}, 10);
    static_cast<void>(device.log().take());
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(0, 0, 300, 200));
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(NSLayoutConstraintTest, AContradictionIsLoggedOnceUntilItIsGone) {
    const auto view = add();
    fill(*view);
    equal({*view, Width}, 10);
    layOut();
    static_cast<void>(device.log().take());
    host->peer().setNeedsLayout();
    layOut();
    EXPECT_TRUE(device.log().take().empty());
    host->setFrame(CGRectMake(0, 0, 10, 200));
    layOut();
    host->setFrame(CGRectMake(0, 0, 20, 200));
    layOut();
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(NSLayoutConstraintTest, ALengthIsNeverNegative) {
    const auto view = add();
    equal({*view, Leading}, {*host, Leading}, 50);
    equal({*view, Trailing}, {*host, Leading}, 20);
    layOut();
    EXPECT_EQ(view->frame().origin.x, 50);
    EXPECT_EQ(view->frame().size.width, 0);
}

TEST_F(NSLayoutConstraintTest, ViewsOfDifferentTreesCannotBeTied) {
    const auto stranger = make<SizedView>();
    const auto& refused = constrain({.first = {*stranger, Leading}, .second = LayoutAnchor(*host, Leading)});
    EXPECT_FALSE(refused.isActive());
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(NSLayoutConstraintTest, AConstraintOnAViewThatIsGoneIsLeftOut) {
    const auto view = add(10, 10);
    {
        const auto gone = add(30, 30);
        equal({*view, Leading}, {*gone, Trailing});
        equal({*view, Leading}, {*host, Leading}, 3);
        gone->peer().removeFromSuperview();
    }
    layOut();
    EXPECT_EQ(view->frame().origin.x, 3);
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(NSLayoutConstraintTest, ALabelOfSeveralLinesIsAsHighAsItsWidthMakesIt) {
    const auto label = make<UILabel>();
    peerOf<UILabelPeer>(*label).setNumberOfLines(0);
    label->setText("Rows whose controlling switch is off are hidden and come back when it is turned on.");
    label->peer().setFrameGiven(false);
    host->addSubview(label);
    equal({*label, Leading}, {*host, Leading});
    equal({*label, Trailing}, {*host, Trailing});
    equal({*label, Top}, {*host, Top});
    layOut();
    const auto wide = label->frame().size;
    EXPECT_EQ(wide.width, 300);
    EXPECT_EQ(wide.height, label->peer().sizeThatFits({300, 1e6}).height);
    host->setFrame(CGRectMake(0, 0, 120, 400));
    layOut();
    EXPECT_EQ(label->frame().size.height, label->peer().sizeThatFits({120, 1e6}).height);
    EXPECT_GT(label->frame().size.height, wide.height);
}

TEST_F(NSLayoutConstraintTest, AHostOfTextsThatAreWrappedIsLaidOutOnce) {
    const auto counting = make<LayoutCounter>();
    counting->setFrame(CGRectMake(0, 0, 100, 300));
    const auto label = make<UILabel>();
    peerOf<UILabelPeer>(*label).setNumberOfLines(0);
    label->setText("Rows whose controlling switch is off are hidden and come back when it is turned on.");
    label->peer().setFrameGiven(false);
    counting->addSubview(label);
    equal({*label, Leading}, {*counting, Leading});
    equal({*label, Top}, {*counting, Top});
    constrain({.first = {*label, Trailing},
               .relation = LinearRelation::LessOrEqual,
               .second = LayoutAnchor(*counting, Trailing)});
    counting->peer().layoutIfNeeded();
    const auto first = label->frame();
    EXPECT_EQ(first.size.height, label->peer().sizeThatFits({first.size.width, 1e6}).height);
    EXPECT_LT(first.size.width, 100);
    EXPECT_FALSE(label->peer().takeLayoutWidth(*label->peer().intrinsicWidth())) << "it has that already";
    counting->peer().layoutIfNeeded();
    EXPECT_EQ(counting->layouts, 1);
    counting->peer().setNeedsLayout();
    counting->peer().layoutIfNeeded();
    EXPECT_EQ(label->frame(), first);
}

TEST_F(NSLayoutConstraintTest, TheFittingSizeIsTheSmallestThatHoldsEverything) {
    const auto view = add(40, 30);
    fill(*view, 10);
    EXPECT_EQ(host->peer().fittingSize(std::nullopt), (CGSize{60, 50}));
    EXPECT_EQ(host->peer().fittingSize(200), (CGSize{200, 50}));
}

TEST_F(NSLayoutConstraintTest, AnchorsOfEdgesPlaceAView) {
    const auto view = make<UIView>();
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    host->addSubview(view);
    NSLayoutConstraint::activateConstraints(
        {view->leadingAnchor()->constraintEqualToAnchor(host->leadingAnchor(), 10),
         view->trailingAnchor()->constraintEqualToAnchor(host->trailingAnchor(), -20),
         view->topAnchor()->constraintEqualToAnchor(host->topAnchor(), 30),
         view->bottomAnchor()->constraintEqualToAnchor(host->bottomAnchor(), -40)});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(10, 30, 270, 130));
    view->setTranslatesAutoresizingMaskIntoConstraints(true);
    view->setFrame(CGRectMake(1, 2, 3, 4));
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
}

TEST_F(NSLayoutConstraintTest, AnchorsOfMiddlesAndLengthsPlaceAView) {
    const auto view = add();
    const auto other = add();
    NSLayoutConstraint::activateConstraints(
        {view->centerXAnchor()->constraintEqualToAnchor(host->centerXAnchor(), 5),
         view->centerYAnchor()->constraintEqualToAnchor(host->centerYAnchor()),
         view->widthAnchor()->constraintEqualToConstant(60),
         view->heightAnchor()->constraintEqualToConstant(40),
         other->widthAnchor()->constraintEqualToAnchor(view->widthAnchor(), 8)});
    layOut();
    EXPECT_EQ(view->frame(), CGRectMake(125, 80, 60, 40));
    EXPECT_EQ(other->frame().size.width, 68);
}

TEST_F(NSLayoutConstraintTest, TheSafeAreasGuideHasAnchors) {
    host->peer().setAdditionalSafeAreaInsets({.top = 44, .left = 0, .bottom = 30, .right = 0});
    const auto above = add(10, 10);
    const auto middle = add(10, 10);
    NSLayoutConstraint::activateConstraints(
        {above->topAnchor()->constraintEqualToAnchor(host->safeAreaLayoutGuide()->topAnchor(), 6),
         middle->centerYAnchor()->constraintEqualToAnchor(host->safeAreaLayoutGuide()->centerYAnchor())});
    layOut();
    EXPECT_EQ(above->frame().origin.y, 50);
    EXPECT_EQ(middle->frame().origin.y, 102);
}
