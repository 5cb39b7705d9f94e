#include "ScreenPlacement.h"

#include <gtest/gtest.h>

namespace {

constexpr CGSize phone{390, 844};

TEST(ScreenPlacement, FillsAWindowOfTheSameSize) {
    const ScreenPlacement placement({390, 844}, 1, phone);
    EXPECT_EQ(placement.pixelsPerPoint(), 1);
    EXPECT_EQ(placement.frame(), QRectF(0, 0, 390, 844));
    EXPECT_EQ(placement.toScreen({100, 200}), (CGPoint{100, 200}));
}

TEST(ScreenPlacement, LiesInTheMiddleOfAWideWindow) {
    const ScreenPlacement placement({1000, 422}, 1, phone);
    EXPECT_EQ(placement.pixelsPerPoint(), 0.5);
    EXPECT_EQ(placement.frame(), QRectF(402, 0, 195, 422));
    EXPECT_EQ(placement.toScreen({402, 0}), (CGPoint{0, 0}));
    EXPECT_EQ(placement.toScreen({597, 422}), (CGPoint{390, 844}));
}

TEST(ScreenPlacement, LiesInTheMiddleOfAHighWindow) {
    const ScreenPlacement placement({390, 1000}, 1, phone);
    EXPECT_EQ(placement.frame(), QRectF(0, 78, 390, 844));
    EXPECT_LT(placement.toScreen({0, 0}).y, 0);
}

TEST(ScreenPlacement, HasThePixelsOfADenseDesktop) {
    const ScreenPlacement placement({390, 844}, 2, phone);
    EXPECT_EQ(placement.pixelsPerPoint(), 2);
    EXPECT_EQ(placement.frame(), QRectF(0, 0, 390, 844));
    EXPECT_EQ(placement.toScreen({100, 200}), (CGPoint{100, 200}));
}

TEST(ScreenPlacement, KeepsItsCornersOnWholePixels) {
    const ScreenPlacement placement({501, 901}, 1.5, phone);
    const auto pixels = placement.frame().topLeft() * 1.5;
    EXPECT_EQ(pixels, QPointF(pixels.toPoint()));
}

TEST(ScreenPlacement, PlacesARectangleOfTheScreen) {
    const ScreenPlacement placement({1000, 422}, 1, phone);
    EXPECT_EQ(placement.toWindow(CGRectMake(10, 20, 100, 40)), QRectF(407, 10, 50, 20));
}

TEST(ScreenPlacement, CoversThePixelsOfAPictureOutward) {
    const ScreenPlacement placement({390, 844}, 1, phone);
    const auto covered = placement.toWindow(QRect(30, 60, 31, 30), QSize(1170, 2532));
    EXPECT_TRUE(covered.contains(QRect(10, 20, 11, 10)));
    EXPECT_LT(covered.width(), 16);
}

TEST(ScreenPlacement, SurvivesAWindowWithoutSize) {
    const ScreenPlacement placement({0, 0}, 1, phone);
    EXPECT_GT(placement.pixelsPerPoint(), 0);
}

} // namespace
