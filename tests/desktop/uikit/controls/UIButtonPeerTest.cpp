#include "controls/UIButtonPeer.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "RectGeometry.h"
#include "screen/TouchFixture.h"
#include "views/UILabelPeer.h"

namespace {

using namespace std::chrono_literals;

class UIButtonPeerTest : public TouchFixture {
protected:
    UIButtonPeerTest() {
        peerOf<UIButtonPeer>(*button).setTitle("Cancel");
        button->setFrame(CGRectMake(100, 200, 100, 40));
        window->addSubview(button);
        screen.layoutIfNeeded();
    }

    [[nodiscard]] double shownAlpha() const {
        return peerOf<UIButtonPeer>(*button).titleLabel().layer().peer().shownValue(
            LayerProperty::Opacity)[0];
    }

    Ref<UIButton> button = make<UIButton>();
};

TEST_F(UIButtonPeerTest, IsPaleWhilePressed) {
    down(150, 220);
    EXPECT_EQ(shownAlpha(), 0.2);
    up(150, 220);
    EXPECT_DOUBLE_EQ(shownAlpha(), 0.2);
    advance(125ms);
    EXPECT_NEAR(shownAlpha(), 0.6, 1e-3);
    advance(125ms);
    EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(UIButtonPeerTest, ActsWhenTheFingerIsLiftedOnItsTitle) {
    auto actions = 0;
    peerOf<UIButtonPeer>(*button).addHandler(UIControlEvents::TouchUpInside, [&] { ++actions; });
    tap(150, 220);
    EXPECT_EQ(actions, 1);
}

TEST_F(UIButtonPeerTest, IsNeverSmallerThanAFingerFinds) {
    peerOf<UIButtonPeer>(*button).setTitle("i");
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).sizeThatFits({}), (CGSize{30, 30}));
    peerOf<UIButtonPeer>(*button).setTitle("A rather long title");
    const auto title = peerOf<UIButtonPeer>(*button).titleLabel().peer().sizeThatFits({});
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).intrinsicWidth(), title.width);
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).intrinsicHeight(), 30);
    peerOf<UIButtonPeer>(*button).setFontStyle({.size = 17});
    const auto larger = peerOf<UIButtonPeer>(*button).titleLabel().peer().sizeThatFits({});
    EXPECT_GT(larger.width, title.width);
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).intrinsicWidth(), larger.width);
}

TEST_F(UIButtonPeerTest, ImageStandsBeforeTheTitleAndBothInTheMiddle) {
    peerOf<UIButtonPeer>(*button).setImage(DesktopImage::symbol("gear", 20));
    screen.layoutIfNeeded();
    const auto image = peerOf<UIButtonPeer>(*button).imageView().frame();
    const auto title = peerOf<UIButtonPeer>(*button).titleLabel().frame();
    EXPECT_GT(image.size.width, 10);
    EXPECT_DOUBLE_EQ(CGRectGetMaxX(image), title.origin.x);
    EXPECT_NEAR((image.origin.x + CGRectGetMaxX(title)) / 2, 50, 1e-9);
    EXPECT_NEAR(CGRectGetMidY(image), 20, 1e-9);
    EXPECT_NEAR(CGRectGetMidY(title), 20, 1e-9);
}

TEST_F(UIButtonPeerTest, AnImageAloneFillsTheDirectionsThatItIsToldTo) {
    peerOf<UIButtonPeer>(*button).setTitle(std::nullopt);
    button->setImage(DesktopImage::symbol("gear", 20), UIControlState::Normal);
    button->setContentHorizontalAlignment(UIControlContentHorizontalAlignment::Fill);
    screen.layoutIfNeeded();
    const auto size = dynamic_cast<DesktopImage&>(*button->imageView().image()).size();
    EXPECT_EQ(button->imageView().frame(), CGRectMake(0, 20 - size.height / 2, 100, size.height));
    button->setContentVerticalAlignment(UIControlContentVerticalAlignment::Fill);
    button->setImageEdgeInsets({.top = 1, .left = 2, .bottom = 3, .right = 4});
    screen.layoutIfNeeded();
    EXPECT_EQ(button->imageView().frame(), CGRectMake(2, 1, 94, 36));
}

TEST_F(UIButtonPeerTest, ImageInsetsMoveAnImageOfItsOwnSize) {
    peerOf<UIButtonPeer>(*button).setTitle(std::nullopt);
    button->setImage(DesktopImage::symbol("gear", 20), UIControlState::Normal);
    button->setImageEdgeInsets({.top = 6, .left = 0, .bottom = 0, .right = 10});
    screen.layoutIfNeeded();
    EXPECT_NEAR(CGRectGetMidX(button->imageView().frame()), 45, 1e-9);
    EXPECT_NEAR(CGRectGetMidY(button->imageView().frame()), 23, 1e-9);
}

TEST_F(UIButtonPeerTest, TheInfoButtonShowsItsSymbolAndSaysWhatItIs) {
    const auto info = UIButton::buttonWithType(UIButtonType::InfoDark);
    const auto image = dynamicCast<DesktopImage>(info->imageView().image());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->symbolName(), "info.circle");
    EXPECT_EQ(info->peer().accessibility().label, "More Info");
}

TEST_F(UIButtonPeerTest, AClassDerivedFromItIsAButtonToo) {
    class OwnButton final : public UIButton {};

    const auto own = makeWith<OwnButton>(&UIView::initWithFrame, CGRectMake(0, 0, 50, 60));
    own->setImage(DesktopImage::symbol("gear", 20), UIControlState::Normal);
    window->addSubview(own);
    screen.layoutIfNeeded();
    EXPECT_EQ(own->frame(), CGRectMake(0, 0, 50, 60));
    EXPECT_NEAR(CGRectGetMidX(own->imageView().frame()), 25, 1e-9);
}

TEST_F(UIButtonPeerTest, TitleIsInTheTintUnlessDisabled) {
    const auto color = [&] {
        return DesktopColor::resolve(
            peerOf<UILabelPeer>(peerOf<UIButtonPeer>(*button).titleLabel()).textColor(), screen.traits());
    };
    const auto of = [&](SystemColor role) {
        return DesktopColor::resolve(DesktopColor::system(role), screen.traits());
    };
    EXPECT_EQ(color(), of(SystemColor::Blue));
    window->peer().setTintColor(DesktopColor::system(SystemColor::Green));
    EXPECT_EQ(color(), of(SystemColor::Green));
    peerOf<UIButtonPeer>(*button).setTitleColor(DesktopColor::system(SystemColor::Red));
    EXPECT_EQ(color(), of(SystemColor::Red));
    peerOf<UIButtonPeer>(*button).setEnabled(false);
    EXPECT_EQ(color(), of(SystemColor::TertiaryLabel));
    peerOf<UIButtonPeer>(*button).setEnabled(true);
    EXPECT_EQ(color(), of(SystemColor::Red));
}

TEST_F(UIButtonPeerTest, TellsItsTitle) {
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).accessibility().label, "Cancel");
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).accessibility().role, AccessibilityRole::Button);
    EXPECT_EQ(peerOf<UIButtonPeer>(*button).shownText(), "Cancel");
}

} // namespace
