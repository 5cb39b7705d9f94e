#include "UIKit/UILabel.h"
#include "screen/RandomLayers.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// The first pixel that differs, for a message; empty when none does.
std::string difference(const QImage& left, const QImage& right) {
    for (auto y = 0; y < left.height(); ++y) {
        for (auto x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y))
                return std::to_string(x) + ", " + std::to_string(y) + ": " +
                       left.pixelColor(x, y).name(QColor::HexArgb).toStdString() + " " +
                       right.pixelColor(x, y).name(QColor::HexArgb).toStdString();
        }
    }
    return {};
}

QRegion damage(ShownScreen& shown) {
    shown.compositor.render();
    return shown.compositor.lastDamage();
}

TEST(CompositorDamage, IsEverythingAtFirst) {
    ShownScreen shown;
    EXPECT_EQ(damage(shown), QRegion(0, 0, 40, 40));
}

TEST(CompositorDamage, IsNothingWhenNothingChanged) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(10, 10, 5, 5), red);
    EXPECT_FALSE(damage(shown).isEmpty());
    EXPECT_TRUE(damage(shown).isEmpty());
    view->setFrame(CGRectMake(20, 10, 5, 5));
    view->setFrame(CGRectMake(10, 10, 5, 5));
    EXPECT_TRUE(damage(shown).isEmpty());
}

TEST(CompositorDamage, IsWhereAViewWasAndWhereItIs) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    shown.compositor.render();
    view->setFrame(CGRectMake(30, 30, 5, 5));
    const auto region = damage(shown);
    EXPECT_TRUE(region.contains(QPoint(2, 2)));
    EXPECT_TRUE(region.contains(QPoint(32, 32)));
    EXPECT_FALSE(region.contains(QPoint(20, 20)));
}

TEST(CompositorDamage, IsWhereAViewThatIsGoneWas) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    shown.compositor.render();
    view->peer().removeFromSuperview();
    const auto region = damage(shown);
    EXPECT_TRUE(region.contains(QPoint(2, 2)));
    EXPECT_FALSE(region.contains(QPoint(20, 20)));
    EXPECT_EQ(shown.pixel(2, 2), QColor(Qt::white));
}

TEST(CompositorDamage, IsThatOfTheNewViewWhenItTakesAnOldOnesPlace) {
    ShownScreen shown;
    for (const auto& color : {red, green, blue}) {
        const auto view = shown.add(CGRectMake(0, 0, 5, 5), color);
        EXPECT_EQ(shown.pixel(2, 2), color.toQColor());
        view->peer().removeFromSuperview();
    }
}

TEST(CompositorDamage, IsAllThatAFadedViewHolds) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    ShownScreen::put(*view, CGRectMake(20, 20, 5, 5), green);
    shown.compositor.render();
    view->setAlpha(0.5);
    EXPECT_TRUE(damage(shown).contains(QPoint(22, 22)));
}

TEST(CompositorDamage, IsOnlyTheChangedPartOfAFadedView) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 40, 40), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(20, 20, 5, 5), green);
    view->setAlpha(0.5);
    shown.compositor.render();
    inner->setBackgroundColor(DesktopColor::fixed(blue));
    EXPECT_FALSE(damage(shown).contains(QPoint(2, 2)));
}

/// One with nothing in it is faded by its colour, another in a picture, and these differ in the last digits.
TEST(CompositorDamage, IsAllOfAFadedViewThatGetsItsFirstSubviewOrLosesItsLast) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(5.25, 5.25, 30, 30), red);
    view->setAlpha(0.5);
    shown.compositor.render();
    const auto inner = ShownScreen::add(*view, CGRectMake(10, 10, 5, 5), green);
    EXPECT_TRUE(damage(shown).contains(QPoint(5, 5)));
    inner->peer().removeFromSuperview();
    EXPECT_TRUE(damage(shown).contains(QPoint(5, 5)));
}

/// Elsewhere a pixel around what changed is painted with it, which makes up for one that is left out.
TEST(CompositorDamage, WithinAPictureIsAllThatIsLeftWhereItIsCutOffAtWholePixels) {
    ShownScreen shown;
    const auto page = shown.add(CGRectMake(5, 5, 30, 30), green);
    page->layer().peer().keepsPicture = true;
    const auto frame = ShownScreen::add(*page, CGRectMake(3, 3, 10, 10), green);
    frame->setClipsToBounds(true);
    const auto content = ShownScreen::add(*frame, CGRectMake(-5, -5, 20, 20), red);
    shown.compositor.render();
    content->setBackgroundColor(DesktopColor::fixed(blue));
    EXPECT_EQ(damage(shown), QRegion(8, 8, 10, 10));
    EXPECT_EQ(shown.pixel(8, 8), QColor(Qt::blue));
    EXPECT_EQ(shown.pixel(17, 17), QColor(Qt::blue));
}

TEST(CompositorDamage, GrowsToTheBackdropThatShowsItBlurred) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 30, 20));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 3, .saturation = 1};
    shown.window->addSubview(panel);
    shown.compositor.render();
    view->setBackgroundColor(DesktopColor::fixed(green));
    const auto region = damage(shown);
    EXPECT_TRUE(region.contains(QPoint(29, 19)));
    EXPECT_FALSE(region.contains(QPoint(35, 35)));
}

TEST(CompositorDamage, IsEverythingOnceMoreAfterThePictureWasForgotten) {
    ShownScreen shown;
    shown.compositor.render();
    shown.compositor.forgetPicture();
    EXPECT_EQ(damage(shown), QRegion(0, 0, 40, 40));
}

TEST(CompositorDamage, IsEverythingOnAScreenOfAnotherSize) {
    ShownScreen shown;
    shown.compositor.render();
    shown.screen.setSize({50, 30});
    EXPECT_EQ(damage(shown), QRegion(0, 0, 50, 30));
}

class RandomChanges : public testing::TestWithParam<unsigned> {};

TEST_P(RandomChanges, PaintTheSamePixelsAsAWholePicture) {
    ShownScreen shown({80, 80}, GetParam() % 2 == 0 ? 3 : 2);
    RandomLayers layers(*shown.window, GetParam());
    auto partialPictures = 0;
    for (auto step = 0; step < 25; ++step) {
        layers.change();
        shown.device.advance(70ms);
        const auto picture = shown.compositor.render().copy();
        partialPictures += shown.compositor.lastDamage() != QRegion(picture.rect()) ? 1 : 0;
        Compositor whole(shown.screen);
        ASSERT_EQ(difference(picture, whole.render()), "") << "at step " << step;
    }
    EXPECT_GT(partialPictures, 0);
}

/// A panel that shows what is behind it blurred comes over a page with rows, all of which keep pictures.
TEST(CompositorDamage, APageIsPaintedSmallerBitByBitAsItIsPaintedWhole) {
    ShownScreen shown({120, 160}, 3);
    const auto page = shown.add(CGRectMake(0, 0, 120, 160), green);
    page->layer().peer().keepsPicture = true;
    std::vector<Ref<UIView>> rows;
    for (auto top = 4; top < 160; top += 13) {
        rows.push_back(ShownScreen::add(*page, CGRectMake(7, top, 100, 11), top % 2 == 0 ? red : blue));
        rows.back()->layer().peer().keepsPicture = true;
        rows.back()->layer().setCornerRadius(4);
    }
    const auto panel = make<UIView>();
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown.window->addSubview(panel);
    std::size_t changed = 0;
    for (const auto top : {159, 150, 120, 121, 60, 90, 30, 0}) {
        panel->setFrame(CGRectMake(0, top, 120, 160 - top));
        rows[++changed]->setBackgroundColor(UIColor::whiteColor());
        const auto picture = shown.compositor.render().copy();
        Compositor whole(shown.screen);
        EXPECT_EQ(difference(picture, whole.render()), "") << "from " << top;
        page->peer().setTransform(AffineTransform::translation(0, -static_cast<double>(changed)));
    }
}

constexpr auto oneByte = 0xEE;
constexpr auto otherByte = 0x11;

/// The picture of a screen, painted in memory that holds that byte everywhere.
QImage pictureInMemoryOf(int byte, Screen& screen) {
    mallopt(M_PERTURB, byte);
    Compositor whole(screen);
    auto picture = whole.render().copy();
    mallopt(M_PERTURB, 0);
    return picture;
}

/// A page that keeps a picture, with rows that keep theirs, behind a backdrop.
TEST(CompositorDamage, ABackdropShowsNothingOfWhatWasInTheMemory) {
    ShownScreen shown({120, 160}, 3);
    const auto page = shown.add(CGRectMake(0, 0, 120, 160), green);
    page->layer().peer().keepsPicture = true;
    page->setClipsToBounds(true);
    page->layer().setCornerRadius(30);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 80, 120, 81), green);
    row->layer().peer().keepsPicture = true;
    row->setClipsToBounds(true);
    row->layer().setCornerRadius(20);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 120, 160));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown.window->addSubview(panel);
    for (const auto scale : {1.0, 0.93, 0.71}) {
        page->peer().setTransform(AffineTransform::scale(scale));
        EXPECT_EQ(
            difference(pictureInMemoryOf(oneByte, shown.screen), pictureInMemoryOf(otherByte, shown.screen)),
            "")
            << "at " << scale;
    }
}

TEST_P(RandomChanges, ShowNothingOfWhatWasInTheMemory) {
    ShownScreen shown({80, 80}, GetParam() % 2 == 0 ? 3 : 2);
    RandomLayers layers(*shown.window, GetParam());
    for (auto step = 0; step < 12; ++step) {
        layers.change();
        shown.device.advance(70ms);
        ASSERT_EQ(
            difference(pictureInMemoryOf(oneByte, shown.screen), pictureInMemoryOf(otherByte, shown.screen)),
            "")
            << "at step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomChanges, testing::Range(1U, 41U));

} // namespace
