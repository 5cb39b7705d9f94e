#include "views/UILabelPeer.h"

#include "DesktopFont.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

constexpr double lineHeight = 20.0 + 1.0 / 3; // of 17 points, in whole pixels of a third of a point

class UILabelPeerTest : public testing::Test {
protected:
    UILabelPeerTest() : shown_({300, 200}, 3) {
        label_->setText("Some words of text");
        shown_.window->addSubview(label_);
    }

    [[nodiscard]] UILabelPeer& peer() const { return peerOf<UILabelPeer>(*label_); }

    ShownScreen shown_;
    Ref<UILabel> label_ = make<UILabel>();
};

TEST_F(UILabelPeerTest, IsOneLineHighUnlessToldOtherwise) {
    EXPECT_NEAR(*peer().intrinsicHeight(), lineHeight, 1e-9);
    EXPECT_NEAR(peer().sizeThatFits({40, 0}).height, lineHeight, 1e-9);
    EXPECT_EQ(peer().sizeThatFits({40, 0}).width, *peer().intrinsicWidth());
}

TEST_F(UILabelPeerTest, WrapsToTheRoomItIsGiven) {
    peer().setNumberOfLines(0);
    const auto size = peer().sizeThatFits({70, 0});
    EXPECT_LE(size.width, 70);
    EXPECT_GT(size.height, 2 * lineHeight - 1);
    peer().setNumberOfLines(2);
    EXPECT_LE(peer().sizeThatFits({40, 0}).height, 2 * lineHeight);
}

TEST_F(UILabelPeerTest, WrapsItsIntrinsicSizeToTheWidthThatALayoutGaveIt) {
    peer().setNumberOfLines(0);
    EXPECT_NEAR(*peer().intrinsicHeight(), lineHeight, 1e-9);
    EXPECT_TRUE(peer().takeLayoutWidth(70));
    EXPECT_FALSE(peer().takeLayoutWidth(70));
    EXPECT_LE(*peer().intrinsicWidth(), 70);
    EXPECT_GT(*peer().intrinsicHeight(), 2 * lineHeight - 1);
}

TEST_F(UILabelPeerTest, HasNoSizeWithoutAText) {
    label_->setText(std::nullopt);
    EXPECT_EQ(*peer().intrinsicWidth(), 0);
    EXPECT_EQ(*peer().intrinsicHeight(), 0);
    EXPECT_EQ(peer().shownText(), std::nullopt);
}

TEST_F(UILabelPeerTest, FitsItsTextExactly) {
    peer().sizeToFit();
    EXPECT_FALSE(peer().isTruncated());
    auto frame = label_->frame();
    frame.size.width -= 1;
    label_->setFrame(frame);
    EXPECT_TRUE(peer().isTruncated());
}

TEST_F(UILabelPeerTest, CutsOffLinesThatTheBoundsAreTooLowFor) {
    peer().setNumberOfLines(0);
    label_->setFrame(CGRectMake(0, 0, 70, 100));
    EXPECT_FALSE(peer().isTruncated());
    label_->setFrame(CGRectMake(0, 0, 70, 22));
    EXPECT_TRUE(peer().isTruncated());
}

TEST_F(UILabelPeerTest, StandsInTheMiddleOfItsHeight) {
    label_->setText("E");
    label_->setFrame(CGRectMake(0, 0, 200, 44));
    const auto picture = shown_.compositor.render();
    const auto hasInk = [&](int y) {
        for (auto x = 0; x < 60; ++x) {
            if (picture.pixel(x, y) != picture.pixel(599, y))
                return true;
        }
        return false;
    };
    auto baseline = 44 * 3;
    while (baseline > 0 && !hasInk(baseline - 1))
        --baseline;
    const auto textTop = (44 - lineHeight) / 2;
    EXPECT_NEAR(baseline / 3.0, textTop + 0.952 * 17, 1.0 / 3);
}

TEST_F(UILabelPeerTest, MakesItsTextSmallerToFitWhenAllowedTo) {
    label_->setFrame(CGRectMake(0, 0, *peer().intrinsicWidth() * 0.8, 44));
    EXPECT_TRUE(peer().isTruncated());
    peer().setMinimumScaleFactor(0.5);
    EXPECT_TRUE(peer().isTruncated());
    peer().setAdjustsFontSizeToFitWidth(true);
    EXPECT_FALSE(peer().isTruncated());
    peer().setMinimumScaleFactor(0.95);
    EXPECT_TRUE(peer().isTruncated());
}

TEST_F(UILabelPeerTest, MakesATextOfSeveralLinesSmallerToFitThem) {
    peer().setNumberOfLines(2);
    label_->setFrame(CGRectMake(0, 0, *peer().intrinsicWidth() * 0.5, 44));
    EXPECT_TRUE(peer().isTruncated());
    peer().setMinimumScaleFactor(0.6);
    peer().setAdjustsFontSizeToFitWidth(true);
    EXPECT_FALSE(peer().isTruncated());
    peer().setMinimumScaleFactor(0.99);
    EXPECT_TRUE(peer().isTruncated());
}

TEST_F(UILabelPeerTest, ItsTextThrowsAShadow) {
    label_->setFrame(CGRectMake(10, 10, 200, 44));
    label_->setTextColor(UIColor::whiteColor());
    const auto plain = shown_.compositor.render().copy();
    label_->setShadowColor(UIColor::blackColor());
    const auto above = shown_.compositor.render().copy();
    label_->setShadowOffset({.width = 1, .height = 1});
    EXPECT_NE(above, plain);
    EXPECT_NE(shown_.compositor.render().copy(), above);
    label_->setShadowColor(nullptr);
    EXPECT_EQ(shown_.compositor.render().copy(), plain);
}

TEST_F(UILabelPeerTest, GrowsWithItsFont) {
    label_->setFont(DesktopFont::font(34, FontWeight::Bold));
    EXPECT_NEAR(*peer().intrinsicHeight(), 40 + 2.0 / 3, 1e-9);
    EXPECT_EQ(peer().fontStyle(), (FontStyle{.size = 34, .weight = FontWeight::Bold}));
}

TEST_F(UILabelPeerTest, IsTextToAssistiveProgramsAndTakesNoTouches) {
    EXPECT_EQ(peer().accessibility().role, AccessibilityRole::StaticText);
    EXPECT_TRUE(peer().accessibility().isElement);
    EXPECT_EQ(peer().shownText(), "Some words of text");
    EXPECT_FALSE(peer().isUserInteractionEnabled());
}

TEST_F(UILabelPeerTest, TellsHowItsTextIsSet) {
    label_->setTextColor(DesktopColor::fixed(green));
    label_->setTextAlignment(NSTextAlignment::Right);
    const auto properties = peer().inspectedProperties();
    EXPECT_EQ(properties.at("text"), PropertyList("Some words of text"));
    EXPECT_EQ(properties.at("textAlignment"), PropertyList(2));
    EXPECT_EQ(properties.at("fontSize"), PropertyList(17.0));
    EXPECT_EQ(properties.at("fontWeight"), PropertyList(400));
    EXPECT_EQ(properties.at("font"), PropertyList(PropertyList::Dictionary{{"size", 17.0}, {"weight", 400}}));
    EXPECT_EQ(properties.at("textColor"), PropertyList(PropertyList::Array{0.0, 1.0, 0.0, 1.0}));
}

/// The darkest, or lightest, pixels of a column range of the picture.
int inkIn(const QImage& picture, const QRect& rect, QRgb paper) {
    auto count = 0;
    for (auto y = rect.top(); y <= rect.bottom(); ++y) {
        for (auto x = rect.left(); x <= rect.right(); ++x)
            count += picture.pixel(x, y) != paper ? 1 : 0;
    }
    return count;
}

TEST_F(UILabelPeerTest, PaintsItsTextWhereItIsAligned) {
    label_->setText("ll");
    label_->setFrame(CGRectMake(0, 0, 100, 30));
    const QRect left(0, 0, 60, 90);
    const QRect right(240, 0, 60, 90);
    const auto white = qRgb(255, 255, 255);
    EXPECT_GT(inkIn(shown_.compositor.render(), left, white), 0);
    EXPECT_EQ(inkIn(shown_.compositor.render(), right, white), 0);
    label_->setTextAlignment(NSTextAlignment::Right);
    EXPECT_EQ(inkIn(shown_.compositor.render(), left, white), 0);
    EXPECT_GT(inkIn(shown_.compositor.render(), right, white), 0);
    label_->setTextAlignment(NSTextAlignment::Center);
    EXPECT_EQ(inkIn(shown_.compositor.render(), left, white), 0);
    EXPECT_EQ(inkIn(shown_.compositor.render(), right, white), 0);
    EXPECT_GT(inkIn(shown_.compositor.render(), QRect(120, 0, 60, 90), white), 0);
}

TEST_F(UILabelPeerTest, PaintsNothingWhereThereIsNoWidth) {
    label_->setFrame(CGRectMake(20, 0, 0, 30));
    EXPECT_EQ(inkIn(shown_.compositor.render(), QRect(0, 0, 300, 90), qRgb(255, 255, 255)), 0);
}

TEST_F(UILabelPeerTest, FollowsTheAppearanceWithItsColour) {
    label_->setFrame(CGRectMake(0, 0, 200, 30));
    shown_.window->setBackgroundColor(UIColor::colorWithRed(0.5, 0.5, 0.5, 1));
    const auto brightest = [this] {
        auto most = 0;
        const auto& picture = shown_.compositor.render();
        for (auto x = 0; x < 600; ++x)
            most = std::max(most, qGray(picture.pixel(x, 45)));
        return most;
    };
    EXPECT_LT(brightest(), 140);
    shown_.screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_GT(brightest(), 200);
}

TEST_F(UILabelPeerTest, IsPaintedAgainWhenItsTextChanges) {
    label_->setFrame(CGRectMake(10, 10, 200, 30));
    shown_.compositor.render();
    label_->setText("Other words");
    shown_.compositor.render();
    EXPECT_TRUE(shown_.compositor.lastDamage().contains(QPoint(60, 60)));
    label_->setText("Other words");
    shown_.compositor.render();
    EXPECT_TRUE(shown_.compositor.lastDamage().isEmpty());
}

} // namespace
