#include "screen/CompositorFixture.h"

#include <algorithm>
#include <memory>
#include <vector>

// What layers keep pictures of, and what backdrops show of it.

namespace {

const QColor white = Qt::white;

/// Counts how often it is painted, by way of a picture that it keeps.
class CountedView final : public UIView {
public:
    CountedView() : UIView(std::make_unique<Peer>()) { layer().peer().keepsPicture = true; }

    [[nodiscard]] int paintings() const { return dynamic_cast<const Peer&>(peer()).paintings; }

private:
    struct Peer final : public UIViewPeer {
        // UIViewPeer:
        void drawLayer(QPainter& /*painter*/, const CGRect& /*bounds*/, const Traits& /*traits*/) override {
            ++paintings;
        }

        int paintings = 0;
    };
};

class CompositorPicturesTest : public CompositorFixture {};

TEST_F(CompositorPicturesTest, APictureOfALayerIsClearWhereTheLayerIs) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), ColorComponents{.alpha = 0});
    ShownScreen::put(*view, CGRectMake(5, 5, 5, 5), red);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(17, 17), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(12, 12), white);
    EXPECT_EQ(shown_.pixel(25, 25), white);
}

TEST_F(CompositorPicturesTest, APictureOfALayerShowsWhatIsWithinItBeyondItsBounds) {
    const auto view = shown_.add(CGRectMake(10, 10, 10, 10), red);
    ShownScreen::put(*view, CGRectMake(-5, 5, 20, 2), green);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(6, 15), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(24, 15), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(4, 15), white);
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(6, 15), white);
    EXPECT_EQ(shown_.pixel(11, 15), QColor(Qt::green));
}

TEST_F(CompositorPicturesTest, APictureOfALayerIsAtWholePixels) {
    const auto view = shown_.add(CGRectMake(10.4, 10, 10, 10), red);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(10, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 15), white);
    view->setFrame(CGRectMake(10.6, 10, 10, 10));
    EXPECT_EQ(shown_.pixel(10, 15), white);
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::red));
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(10, 15), white);
    EXPECT_EQ(shown_.pixel(11, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::red));
}

TEST_F(CompositorPicturesTest, APictureOfALayerFollowsWhatIsWithinIt) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 5, 5), green);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::green));
    inner->setFrame(CGRectMake(10, 10, 5, 5));
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(12, 12), QColor(Qt::green));
    EXPECT_FALSE(shown_.compositor.lastDamage().contains(QPoint(18, 18)));
    inner->setFrame(CGRectMake(0, 15, 5, 5));
    EXPECT_EQ(shown_.pixel(12, 12), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 17), QColor(Qt::green));
}

TEST_F(CompositorPicturesTest, APictureOfALayerFollowsWhatChangedWhileItWasCovered) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), red);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 0, 40, 10), green);
    page->layer().peer().keepsPicture = true;
    row->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::green));
    const auto cover = shown_.add(CGRectMake(0, 0, 40, 40), blue);
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::blue));
    row->setBackgroundColor(DesktopColor::fixed(blue));
    ShownScreen::put(*page, CGRectMake(0, 30, 40, 10), green);
    EXPECT_EQ(shown_.pixel(2, 35), QColor(Qt::blue));
    cover->setFrame(CGRectMake(0, 5, 40, 28)); // by which a part of each is seen
    cover->setBackgroundColor(DesktopColor::fixed(red));
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(2, 35), QColor(Qt::green));
    cover->peer().removeFromSuperview();
    EXPECT_EQ(shown_.pixel(2, 7), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(2, 20), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 31), QColor(Qt::green));
}

// What would be painted beyond the smaller picture, the sanitizers notice.
TEST_F(CompositorPicturesTest, APictureOfALayerShrinksWhichWasNotSeenWhole) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), red);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 0, 40, 10), green);
    page->layer().peer().keepsPicture = true;
    row->layer().peer().keepsPicture = true;
    const auto cover = shown_.add(CGRectMake(0, 20, 40, 20), blue);
    EXPECT_EQ(shown_.pixel(2, 15), QColor(Qt::red));
    row->peer().removeFromSuperview();
    page->setFrame(CGRectMake(0, 0, 40, 10));
    cover->peer().removeFromSuperview();
    EXPECT_EQ(shown_.pixel(2, 5), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 15), white);
    EXPECT_EQ(shown_.pixel(2, 30), white);
}

TEST_F(CompositorPicturesTest, APictureOfALayerIsPaintedSmallerWithItsRoundCorners) {
    const auto view = shown_.add(CGRectMake(0, 0, 40, 40), red);
    ShownScreen::put(*view, CGRectMake(0, 20, 40, 20), blue);
    view->layer().setCornerRadius(8);
    view->setClipsToBounds(true);
    view->layer().peer().keepsPicture = true;
    view->peer().setTransform(AffineTransform::scale(0.75)); // from 5 to 35
    EXPECT_EQ(shown_.pixel(4, 20), white);
    EXPECT_EQ(shown_.pixel(5, 5), white);
    EXPECT_EQ(shown_.pixel(20, 6), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 33), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(20, 36), white);
}

TEST_F(CompositorPicturesTest, ABackdropInALayerThatKeepsAPictureShowsWhatIsBehindTheLayer) {
    shown_.put(CGRectMake(0, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto card = shown_.add(CGRectMake(0, 0, 40, 40), ColorComponents{.alpha = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(5, 5, 30, 30));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    card->addSubview(panel);
    const auto blurred = shown_.pixel(18, 20).red();
    EXPECT_GT(blurred, 20);
    card->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(18, 20).red(), blurred);
    card->setBackgroundColor(DesktopColor::fixed(red));
    EXPECT_EQ(shown_.pixel(18, 20), QColor(Qt::red));
}

TEST(CompositorPictures, AWideBackdropShowsKeptPicturesAsItShowsTheirLayers) {
    ShownScreen shown({120, 160}, 3);
    const auto page = shown.add(CGRectMake(0, 0, 120, 160), green);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 80, 60, 80), red);
    ShownScreen::put(*row, CGRectMake(30, 0, 30, 40), blue);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0.5, 120, 159));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown.window->addSubview(panel);
    const auto seen = shown.compositor.render().copy();
    EXPECT_NE(seen.pixel(30, 400), seen.pixel(330, 400));
    const auto expectAlike = [&](const char* what) {
        const auto& picture = shown.compositor.render();
        for (auto y = 9; y < picture.height(); y += 15) {
            for (auto x = 4; x < picture.width(); x += 15) {
                EXPECT_NEAR(qRed(picture.pixel(x, y)), qRed(seen.pixel(x, y)), 8) << what << x << ", " << y;
                EXPECT_NEAR(qGreen(picture.pixel(x, y)), qGreen(seen.pixel(x, y)), 8) << what;
            }
        }
    };
    row->layer().peer().keepsPicture = true;
    expectAlike("a row: ");
    page->layer().peer().keepsPicture = true;
    expectAlike("a row within a page: ");
    row->layer().peer().keepsPicture = false;
    expectAlike("a page: ");
}

TEST_F(CompositorPicturesTest, ABackdropFollowsWhatIsBehindIt) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), green);
    page->layer().peer().keepsPicture = true;
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown_.window->addSubview(panel);
    expectNear(shown_.pixel(20, 20), QColor(0, 255, 0));
    page->setBackgroundColor(DesktopColor::fixed(red));
    expectNear(shown_.pixel(20, 20), QColor(255, 0, 0));
}

TEST_F(CompositorPicturesTest, WhatIsCoveredIsSeenThroughABackdropBesideIt) {
    shown_.put(CGRectMake(20, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    shown_.window->addSubview(panel);
    const auto blurred = shown_.pixel(22, 20).red();
    EXPECT_GT(blurred, 20);
    shown_.put(CGRectMake(0, 0, 20, 40), green);
    EXPECT_EQ(shown_.pixel(22, 20).red(), blurred);
    EXPECT_EQ(shown_.pixel(10, 20), QColor(Qt::green));
}

TEST_F(CompositorPicturesTest, ABackdropHasOnlyThatPaintedWhichItShows) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), green);
    page->layer().peer().keepsPicture = true;
    const auto upper = make<CountedView>();
    upper->setFrame(CGRectMake(0, 0, 40, 10));
    page->addSubview(upper);
    const auto lower = make<CountedView>();
    lower->setFrame(CGRectMake(0, 30, 40, 10));
    page->addSubview(lower);
    const auto cover = shown_.add(CGRectMake(0, 0, 40, 40), blue);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 28, 40, 12));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown_.window->addSubview(panel);
    cover->setFrame(CGRectMake(0, 0, 40, 28));
    shown_.compositor.render();
    EXPECT_EQ(upper->paintings(), 0);
    EXPECT_EQ(lower->paintings(), 1);
    cover->peer().removeFromSuperview();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    shown_.compositor.render();
    EXPECT_EQ(upper->paintings(), 1);
    EXPECT_EQ(lower->paintings(), 1);
}

TEST(CompositorPictures, APictureOfTextsIsPaintedInBandsAsTheyComeToBeSeen) {
    ShownScreen shown({40, 400}, 3);
    const auto page = shown.add(CGRectMake(0, 390, 40, 400), green);
    page->layer().peer().keepsPicture = true;
    std::vector<Ref<CountedView>> texts;
    for (const auto top : {0, 60, 120, 180}) {
        texts.push_back(make<CountedView>());
        texts.back()->layer().peer().keepsPicture = false;
        texts.back()->setFrame(CGRectMake(0, top, 40, 20));
        page->addSubview(texts.back());
    }
    const auto expectPaintings = [&](const std::vector<int>& expected) {
        shown.compositor.render();
        std::vector<int> paintings(texts.size());
        std::ranges::transform(texts, paintings.begin(), [](const auto& text) { return text->paintings(); });
        EXPECT_EQ(paintings, expected);
    };
    expectPaintings({1, 1, 0, 0});
    page->setFrame(CGRectMake(0, 320, 40, 400)); // up to the end of the first 256 pixels
    expectPaintings({1, 1, 0, 0});
    page->setFrame(CGRectMake(0, 310, 40, 400));
    expectPaintings({1, 1, 1, 0});
    page->setFrame(CGRectMake(0, 0, 40, 400));
    expectPaintings({1, 1, 1, 1});
}

TEST_F(CompositorPicturesTest, AScaledPictureLetsThroughWhatIsBehindItsEdges) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    view->layer().peer().keepsPicture = true;
    view->peer().setTransform(AffineTransform::scale(1.6));
    const auto& picture = shown_.compositor.render();
    for (auto x = 0; x < 40; ++x) {
        EXPECT_EQ(picture.pixelColor(x, 20).alpha(), 255) << x;
        EXPECT_EQ(picture.pixelColor(x, 20).red(), 255) << x; // white, red or between them
    }
    EXPECT_EQ(picture.pixelColor(20, 20), QColor(Qt::red));
}

TEST_F(CompositorPicturesTest, WhatIsBeneathAnOpaqueLayersRoundCornersIsSeen) {
    shown_.put(CGRectMake(0, 0, 40, 40), green);
    const auto view = shown_.add(CGRectMake(0, 0, 40, 40), red);
    view->layer().setCornerRadius(12);
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(39, 39), QColor(Qt::green));
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::red));
}

} // namespace
