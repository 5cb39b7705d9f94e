#include "SceneFrames.h"

#include <gtest/gtest.h>

namespace {

constexpr double copy = 0.5;
constexpr double most = SceneFrames::mostCopies * copy;
constexpr double somePixels = 1000;

TEST(SceneFramesTest, AMedianWithinTheLimitIsGood) {
    SceneFrames frames("scene");
    for (const auto time : {10 * most, most, 10 * most})
        frames.add(time, somePixels);
    EXPECT_FALSE(frames.isGood(copy));
    frames.add(most, somePixels);
    frames.add(0.1 * most, somePixels);
    EXPECT_TRUE(frames.isGood(copy));
}

TEST(SceneFramesTest, TheLimitIsToldInCopies) {
    SceneFrames frames("scene");
    frames.add(most, somePixels);
    EXPECT_TRUE(frames.isGood(copy));
    EXPECT_FALSE(frames.isGood(0.99 * copy));
}

TEST(SceneFramesTest, ASceneThatPaintedNothingIsNotGood) {
    SceneFrames frames("scene");
    EXPECT_FALSE(frames.isGood(copy));
    frames.add(0.1 * most, 0);
    EXPECT_FALSE(frames.isGood(copy));
    frames.add(0.1 * most, somePixels);
    EXPECT_TRUE(frames.isGood(copy));
}

TEST(SceneFramesTest, AQuantileIsOneOfTheValues) {
    EXPECT_EQ(quantile({3, 1, 2}, 0.5), 2);
    EXPECT_EQ(quantile({3, 1, 2}, 1), 3);
    EXPECT_EQ(quantile({4}, 0.95), 4);
}

} // namespace
