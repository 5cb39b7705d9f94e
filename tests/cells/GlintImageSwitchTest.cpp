#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "GlintImageSwitchFixture.h"
#include "ObjectiveC/Class.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <QPainterPath>

using GlintImageSwitchTest = GlintImageSwitchFixture;

namespace {

constexpr auto defaultSize = CGSize{50, 30};

Ref<UIColor> rgb(double red, double green, double blue) {
    return UIColor::colorWithRed(red, green, blue, 1);
}

ColorComponents componentsOf(const Ref<UIColor>& color) {
    return DesktopColor::resolve(color, Traits());
}

bool same(const Ref<UIColor>& left, const Ref<UIColor>& right) {
    return componentsOf(left) == componentsOf(right);
}

} // namespace

TEST_F(GlintImageSwitchTest, IsFoundByNameAndMadeLikeInit) {
    const auto* const named = NSClassFromString("GlintImageSwitch");
    ASSERT_NE(named, nullptr);
    const auto made = dynamicCast<GlintImageSwitch>(named->create());
    ASSERT_TRUE(made);
    EXPECT_EQ(made->frame(), CGRectMake(0, 0, 50, 30));
    EXPECT_EQ(make<GlintImageSwitch>()->frame(), CGRectMake(0, 0, 50, 30));
}

TEST_F(GlintImageSwitchTest, AnEmptyRectangleStandsForFiftyByThirty) {
    for (const auto empty : {CGRectMake(0, 0, 0, 0), CGRectMake(7, 8, 0, 30), CGRectMake(7, 8, 50, 0)}) {
        const auto made = makeWith<GlintImageSwitch>(&GlintImageSwitch::initWithFrame, empty);
        EXPECT_EQ(made->frame(), CGRectMake(0, 0, 50, 30));
    }
}

TEST_F(GlintImageSwitchTest, AnotherRectangleIsKept) {
    const auto frame = CGRectMake(3, 4, 80, 40);
    const auto made = makeWith<GlintImageSwitch>(&GlintImageSwitch::initWithFrame, frame);
    EXPECT_EQ(made->frame(), frame);
    EXPECT_EQ(made->backgroundView()->frame(), CGRectMake(0, 0, 80, 40));
    EXPECT_EQ(made->thumbView()->frame(), CGRectMake(1, 1, 38, 38));
    EXPECT_EQ(made->onLabel()->frame(), CGRectMake(0, 0, 40, 40));
    EXPECT_EQ(made->offLabel()->frame(), CGRectMake(40, 0, 40, 40));
}

TEST_F(GlintImageSwitchTest, ReadFromAnArchiveItIsSetUpToo) {
    const auto coder = make<NSCoder>();
    const auto made = makeWith<GlintImageSwitch>(&GlintImageSwitch::initWithCoder, *coder);
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->backgroundView());
    EXPECT_FALSE(made->isOn());
}

TEST_F(GlintImageSwitchTest, HasItsDefaultColours) {
    const auto made = make<GlintImageSwitch>();
    EXPECT_TRUE(same(made->activeColor(), rgb(0.89, 0.89, 0.89)));
    EXPECT_TRUE(same(made->inactiveColor(), UIColor::clearColor()));
    EXPECT_TRUE(same(made->onTintColor(), rgb(0.3, 0.85, 0.39)));
    EXPECT_TRUE(same(made->borderColor(), rgb(0.78, 0.78, 0.8)));
    EXPECT_TRUE(same(made->thumbTintColor(), UIColor::whiteColor()));
    EXPECT_TRUE(same(made->onThumbTintColor(), UIColor::whiteColor()));
    EXPECT_TRUE(same(made->shadowColor(), UIColor::grayColor()));
    EXPECT_TRUE(made->isRounded());
    EXPECT_FALSE(made->isOn());
}

TEST_F(GlintImageSwitchTest, TheTrackIsAPillWithABorderThatCutsNothingOff) {
    const auto& track = control->backgroundView();
    EXPECT_EQ(track->frame(), (CGRect{{}, defaultSize}));
    EXPECT_EQ(track->layer().cornerRadius(), 15);
    EXPECT_EQ(track->layer().peer().number(LayerProperty::BorderWidth), 1);
    EXPECT_TRUE(borderIs(control->borderColor()));
    EXPECT_FALSE(track->layer().peer().masksToBounds);
    EXPECT_FALSE(track->peer().isUserInteractionEnabled());
    EXPECT_EQ(track->peer().subviews().size(), 4U);
}

TEST_F(GlintImageSwitchTest, TheThumbLiesAboveTheTrackAndThrowsAShadow) {
    const auto& thumb = control->thumbView();
    EXPECT_EQ(control->peer().subviews(), (std::vector<Ref<UIView>>{control->backgroundView(), thumb}));
    EXPECT_EQ(thumbFrame(), restingOff);
    const auto& layer = thumb->layer().peer();
    EXPECT_EQ(layer.number(LayerProperty::CornerRadius), 14);
    EXPECT_EQ(layer.number(LayerProperty::ShadowRadius), 2);
    EXPECT_EQ(layer.number(LayerProperty::ShadowOpacity), 0.5);
    EXPECT_EQ(layer.value(LayerProperty::ShadowOffset), (LayerValue{0, 3}));
    EXPECT_TRUE(shadowIs(control->shadowColor()));
    ASSERT_TRUE(layer.shadowPath);
    EXPECT_EQ(layer.shadowPath->boundingRect(), QRectF(0, 0, 28, 28));
    EXPECT_FALSE(layer.masksToBounds);
    EXPECT_FALSE(thumb->peer().isUserInteractionEnabled());
}

TEST_F(GlintImageSwitchTest, TheHalvesCarryImagesAndTextsInTheirOrder) {
    const auto& halves = control->backgroundView()->peer().subviews();
    const auto left = CGRectMake(0, 0, 20, 30);
    const auto right = CGRectMake(30, 0, 20, 30);
    ASSERT_EQ(halves.size(), 4U);
    EXPECT_EQ(onImageView()->frame(), left);
    EXPECT_EQ(offImageView()->frame(), right);
    EXPECT_EQ(halves[2], control->onLabel());
    EXPECT_EQ(halves[2]->frame(), left);
    EXPECT_EQ(halves[3], control->offLabel());
    EXPECT_EQ(halves[3]->frame(), right);
}

TEST_F(GlintImageSwitchTest, ImagesLieInTheMiddleOfTheirPlace) {
    for (const auto& view : {onImageView(), offImageView(), thumbImageView()})
        EXPECT_EQ(view->peer().contentMode(), UIViewContentMode::Center);
}

TEST_F(GlintImageSwitchTest, TextsAreSmallLightGrayAndCentred) {
    for (const auto& label : {control->onLabel(), control->offLabel()}) {
        const auto& peer = peerOf<UILabelPeer>(*label);
        EXPECT_EQ(peer.textAlignment(), NSTextAlignment::Center);
        EXPECT_TRUE(same(peer.textColor(), UIColor::lightGrayColor()));
        EXPECT_EQ(peer.fontStyle(), (FontStyle{.size = 12, .weight = FontWeight::Regular}));
    }
}

TEST_F(GlintImageSwitchTest, AFreshSwitchHasTheLookOfOneThatIsOff) {
    const auto& track = *control->backgroundView();
    EXPECT_TRUE(same(track.peer().backgroundColor(), UIColor::clearColor()));
    EXPECT_TRUE(borderIs(control->borderColor()));
    EXPECT_EQ(thumbColor(), control->thumbTintColor());
    expectTrackContents(false);
}

TEST_F(GlintImageSwitchTest, ImagesGoToTheirViewsAndAreReadBackFromThem) {
    const auto image = UIImage::systemImageNamed("gear");
    ASSERT_TRUE(image);
    control->setOnImage(image);
    EXPECT_EQ(control->onImage(), image);
    EXPECT_FALSE(control->offImage());
    control->setOffImage(image);
    EXPECT_EQ(control->offImage(), image);
    control->setThumbImage(image);
    EXPECT_EQ(control->thumbImage(), image);
    EXPECT_EQ(onImageView()->image(), image);
    EXPECT_EQ(offImageView()->image(), image);
    EXPECT_EQ(control->thumbView()->peer().subviews().size(), 1U);
    EXPECT_EQ(thumbImageView()->image(), image);
    control->setOnImage(nullptr);
    EXPECT_FALSE(control->onImage());
}

TEST_F(GlintImageSwitchTest, TheThumbsImageGrowsWithTheThumb) {
    EXPECT_EQ(thumbImageView()->frame(), CGRectMake(0, 0, 28, 28));
    down(10);
    EXPECT_EQ(thumbImageView()->frame(), CGRectMake(0, 0, 33, 28));
    EXPECT_EQ(thumbImageView()->peer().autoresizingMask(), UIViewAutoresizing::FlexibleWidth);
}

TEST_F(GlintImageSwitchTest, SetInCodeItChangesItsLookAtOnceAndSendsNothing) {
    control->setOn(true);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOn);
    EXPECT_EQ(shownThumbLeft(), restingOn.origin.x);
    EXPECT_EQ(trackColor(), control->onTintColor());
    EXPECT_TRUE(borderIs(control->onTintColor()));
    expectTrackContents(true);
    control->setOn(false, true);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOff);
    EXPECT_EQ(shownThumbLeft(), restingOn.origin.x) << "animated";
    settle();
    EXPECT_EQ(shownThumbLeft(), restingOff.origin.x);
    expectTrackContents(false);
    EXPECT_EQ(events->count, 0);
}

TEST_F(GlintImageSwitchTest, ShowingAStateLeavesTheValueAlone) {
    control->showOnAnimated(false);
    EXPECT_FALSE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOn);
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), restingOff) << "layout goes by the value";
    control->setOn(true);
    control->showOffAnimated(false);
    EXPECT_TRUE(control->isOn());
    EXPECT_EQ(thumbFrame(), restingOff);
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), restingOn);
    EXPECT_EQ(events->count, 0);
}

TEST_F(GlintImageSwitchTest, TheThumbMovesAcrossTheTrackOnly) {
    control->thumbView()->setFrame(CGRectMake(1, 4, 28, 20));
    control->setOn(true);
    EXPECT_EQ(thumbFrame(), CGRectMake(21, 4, 28, 20));
    control->setOn(false);
    EXPECT_EQ(thumbFrame(), CGRectMake(1, 4, 28, 20));
    down(10);
    EXPECT_EQ(thumbFrame(), CGRectMake(1, 4, 33, 20));
}

TEST_F(GlintImageSwitchTest, AfterANewSizeEverythingLiesInItsPlace) {
    control->setOn(true);
    control->setFrame(CGRectMake(0, 0, 100, 40));
    control->peer().layoutIfNeeded();
    EXPECT_EQ(control->backgroundView()->frame(), CGRectMake(0, 0, 100, 40));
    EXPECT_EQ(control->backgroundView()->layer().cornerRadius(), 20);
    EXPECT_EQ(thumbFrame(), CGRectMake(61, 1, 38, 38));
    EXPECT_EQ(control->thumbView()->layer().cornerRadius(), 19);
    EXPECT_EQ(control->onLabel()->frame(), CGRectMake(0, 0, 60, 40));
    EXPECT_EQ(control->offLabel()->frame(), CGRectMake(40, 0, 60, 40));
    EXPECT_EQ(onImageView()->frame(), CGRectMake(0, 0, 60, 40));
    EXPECT_EQ(offImageView()->frame(), CGRectMake(40, 0, 60, 40));
    control->setOn(false);
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), CGRectMake(1, 1, 38, 38));
}

TEST_F(GlintImageSwitchTest, ANewSizeLeavesTheShadowAsItWas) {
    const auto before = *control->thumbView()->layer().peer().shadowPath;
    control->setFrame(CGRectMake(0, 0, 100, 40));
    control->peer().layoutIfNeeded();
    EXPECT_EQ(*control->thumbView()->layer().peer().shadowPath, before);
    control->setRounded(true);
    EXPECT_EQ(control->thumbView()->layer().peer().shadowPath->boundingRect(), QRectF(0, 0, 38, 38));
}

TEST_F(GlintImageSwitchTest, NotRoundedItHasCornersOfTwoPointsAtOnceAndAfterLayout) {
    const auto expectCorners = [this](double track, double thumb) {
        EXPECT_EQ(control->backgroundView()->layer().cornerRadius(), track);
        EXPECT_EQ(control->thumbView()->layer().cornerRadius(), thumb);
    };
    const auto roundShadow = *control->thumbView()->layer().peer().shadowPath;
    control->setRounded(false);
    EXPECT_FALSE(control->isRounded());
    expectCorners(2, 2);
    EXPECT_NE(*control->thumbView()->layer().peer().shadowPath, roundShadow);
    control->layoutSubviews();
    expectCorners(2, 2);
    control->setRounded(true);
    expectCorners(15, 14);
    EXPECT_EQ(*control->thumbView()->layer().peer().shadowPath, roundShadow);
    control->layoutSubviews();
    expectCorners(15, 14);
}

TEST_F(GlintImageSwitchTest, LayoutLeavesTheFramesAloneWhileItAnimates) {
    control->setOn(true, true);
    control->setFrame(CGRectMake(0, 0, 100, 40));
    control->peer().layoutIfNeeded();
    EXPECT_EQ(thumbFrame(), restingOn);
    EXPECT_EQ(control->backgroundView()->frame(), (CGRect{{}, defaultSize}));
    advance(std::chrono::milliseconds(299));
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), restingOn);
    advance(std::chrono::milliseconds(1));
    control->layoutSubviews();
    EXPECT_EQ(thumbFrame(), CGRectMake(61, 1, 38, 38));
}

TEST_F(GlintImageSwitchTest, ADestroyedSwitchLeavesItsAnimationHarmless) {
    control->setOn(true, true);
    const Weak<GlintImageSwitch> watched = control;
    control->peer().removeFromSuperview();
    control = nullptr;
    settle();
    EXPECT_FALSE(watched.strong());
}
