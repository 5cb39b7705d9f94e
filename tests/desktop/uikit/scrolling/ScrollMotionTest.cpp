#include "scrolling/ScrollMotion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(ScrollMotionTest, SpeedFallsByTwoThousandthsAMillisecond) {
    constexpr auto velocity = 1500.0;
    const auto motion = ScrollMotion::glide(0, ScrollMotion::glideEnd(0, velocity), -1e9, 1e9);
    EXPECT_EQ(motion.at(0), 0);
    for (const auto time : {0.0, 0.1, 0.5, 1.0, 2.0}) {
        const auto speed = (motion.at(time + 1e-6) - motion.at(time)) / 1e-6;
        EXPECT_NEAR(speed, velocity * std::pow(0.998, 1000 * time), 0.01) << time;
    }
    EXPECT_NEAR(motion.rest(), velocity / 2.002002, 0.001);
}

TEST(ScrollMotionTest, GlideIsOverWithinHalfAPointOfItsEnd) {
    const auto motion = ScrollMotion::glide(0, 500, 0, 1000);
    const auto end = std::log(1000) / 2.0020026706730793;
    EXPECT_FALSE(motion.isOverAt(end - 0.001));
    EXPECT_TRUE(motion.isOverAt(end + 0.001));
}

TEST(ScrollMotionTest, GlideToAnEdgePassesItAndIsDrawnBack) {
    const auto motion = ScrollMotion::glide(0, 1000, 0, 400);
    EXPECT_EQ(motion.rest(), 400);
    const auto atEdge = std::log(1000.0 / 600) / 2.0020026706730793;
    EXPECT_NEAR(motion.at(atEdge), 400, 1e-6);
    const auto before = (motion.at(atEdge) - motion.at(atEdge - 1e-7)) / 1e-7;
    const auto after = (motion.at(atEdge + 1e-7) - motion.at(atEdge)) / 1e-7;
    EXPECT_NEAR(before, after, 0.1) << "the speed does not jump";
    EXPECT_FALSE(motion.isOverAt(atEdge)) << "it passes the edge";
    auto farthest = 0.0;
    for (auto millisecond = 0; millisecond < 1000; ++millisecond) {
        const auto time = atEdge + millisecond * 0.001;
        farthest = std::max(farthest, motion.at(time));
        EXPECT_GE(motion.at(time), 400 - 1e-6) << "it does not swing";
    }
    EXPECT_NEAR(farthest, 400 + before / 15 / std::exp(1), 0.1);
    EXPECT_TRUE(motion.isOverAt(atEdge + 0.6));
}

TEST(ScrollMotionTest, SpringReturnsInHalfASecond) {
    const auto motion = ScrollMotion::spring(-100, 0, 0);
    EXPECT_EQ(motion.at(0), -100);
    EXPECT_NEAR(motion.at(0.1), -100 * (1 + 1.5) * std::exp(-1.5), 1e-9);
    EXPECT_NEAR(motion.at(0.45), 0, 1);
    EXPECT_FALSE(motion.isOverAt(0.4));
    EXPECT_TRUE(motion.isOverAt(0.52));
}

TEST(ScrollMotionTest, BeyondAnEdgeOnlyAGlideInwardIsFree) {
    EXPECT_EQ(ScrollMotion::glide(-50, -200, 0, 400).rest(), 0);
    EXPECT_EQ(ScrollMotion::glide(-50, -10, 0, 400).rest(), 0);
    EXPECT_EQ(ScrollMotion::glide(-50, 100, 0, 400).rest(), 100);
    EXPECT_EQ(ScrollMotion::glide(450, 500, 0, 400).rest(), 400);
    EXPECT_EQ(ScrollMotion::glide(450, 300, 0, 400).rest(), 300);
    EXPECT_EQ(ScrollMotion::glide(450, -300, 0, 400).rest(), 0);
    EXPECT_NEAR(ScrollMotion::glide(-50, 100, 0, 400).at(0), -50, 1e-9);
}

TEST(ScrollMotionTest, EaseTakesItsTime) {
    const auto motion = ScrollMotion::ease(100, 300, 0.3);
    EXPECT_EQ(motion.at(0), 100);
    EXPECT_NEAR(motion.at(0.15), 200, 1e-3);
    EXPECT_FALSE(motion.isOverAt(0.299));
    EXPECT_TRUE(motion.isOverAt(0.3));
    EXPECT_EQ(motion.at(0.3), 300);
}

TEST(ScrollMotionTest, RubberBandFollowsItsFormula) {
    for (const auto distance : {0.0, 1.0, 50.0, 300.0, 5000.0}) {
        const auto drawn = ScrollMotion::banded(distance, 600);
        EXPECT_NEAR(drawn, 600 * (1 - 1 / (0.55 * distance / 600 + 1)), 1e-9);
        EXPECT_NEAR(ScrollMotion::unbanded(drawn, 600), distance, 1e-6);
        EXPECT_LT(drawn, 600);
    }
    EXPECT_EQ(ScrollMotion::banded(10, 0), 0);
    EXPECT_EQ(ScrollMotion::unbanded(10, 0), 0);
}

} // namespace
