#include "PicturePool.h"
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

/// A picture that was brought up to date is as one that is painted whole: with what layers show for the first
/// time, and again with what was made of it.
void expectAsPaintedWhole(const QImage& picture, Screen& screen) {
    Compositor whole(screen);
    EXPECT_EQ(difference(picture, whole.render()), "");
    whole.forgetPicture();
    EXPECT_EQ(difference(picture, whole.render()), "") << "the second time";
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
        SCOPED_TRACE("at step " + std::to_string(step));
        expectAsPaintedWhole(picture, shown.screen);
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

/// Two pages move side by side, beneath a bar that is painted, in a card that is stepped back meanwhile.
TEST(CompositorDamage, PagesThatMoveInAPictureThatIsPaintedSmallerAreAsInAWholePicture) {
    ShownScreen shown({120, 160}, 3);
    const auto card = shown.add(CGRectMake(0, 0, 120, 160), ColorComponents{.alpha = 0});
    card->layer().peer().keepsPicture = true;
    card->layer().setMasksToBounds(true);
    card->layer().setCornerRadius(10);
    const auto beneath = ShownScreen::add(*card, CGRectMake(0, 0, 120, 160), green);
    const auto dimming = ShownScreen::add(*card, CGRectMake(0, 0, 120, 160), {.red = 0, .alpha = 0.1});
    const auto above = ShownScreen::add(*card, CGRectMake(0, 0, 120, 160), red);
    const auto bar = ShownScreen::add(*card, CGRectMake(10, 20, 70, 25), blue);
    bar->layer().setCornerRadius(7);
    bar->layer().setBorderWidth(2);
    for (const auto& page : {beneath, above}) {
        page->layer().peer().keepsPicture = true;
        ShownScreen::put(*page, CGRectMake(11, 60, 77, 33), blue);
    }
    for (const auto step : {1, 2, 5, 6, 6, 6, 9}) {
        above->setFrame(CGRectMake(120 - 11 * step, 0, 120, 160));
        beneath->setFrame(CGRectMake(-4 * step, 0, 120, 160));
        dimming->setAlpha(0.1 * step);
        card->peer().setTransform(AffineTransform::scale(1 - 0.011 * step));
        SCOPED_TRACE(step);
        expectAsPaintedWhole(shown.compositor.render().copy(), shown.screen);
    }
}

/// What is moving is painted smaller from the pages' pictures, and made a picture of once it rests.
TEST(CompositorDamage, NoPictureIsMadeOfWhatMovesWhereItIsPaintedSmaller) {
    ShownScreen shown({400, 400});
    const auto card = shown.add(CGRectMake(0, 0, 400, 400), green);
    card->layer().peer().keepsPicture = true;
    const auto page = ShownScreen::add(*card, CGRectMake(0, 0, 400, 400), red);
    page->layer().peer().keepsPicture = true;
    ShownScreen::put(*card, CGRectMake(0.4, 0.3, 300, 300), {.red = 0, .alpha = 0.2});
    card->peer().setTransform(AffineTransform::scale(0.9));
    const auto usedBytes = [&] {
        const auto& pool = PicturePool::shared();
        return pool.allBytes() - pool.keptBytes();
    };
    shown.compositor.render();
    const auto moving = usedBytes();
    for (const auto left : {30, 60, 90}) {
        page->setFrame(CGRectMake(left, 0, 400, 400));
        card->peer().setTransform(AffineTransform::scale(0.9 - 0.001 * left));
        shown.compositor.render();
        EXPECT_EQ(usedBytes(), moving) << left;
    }
    card->peer().setTransform(AffineTransform::scale(0.8));
    shown.compositor.render();
    constexpr std::size_t bytesOfCard = 400UL * 400 * 4;
    EXPECT_GE(usedBytes(), moving + bytesOfCard);
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
