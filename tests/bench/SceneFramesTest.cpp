#include "SceneFrames.h"

#include <gtest/gtest.h>

namespace {

constexpr double copy = 0.5;
constexpr double most = SceneFrames::mostCopies * copy;
constexpr double somePixels = 1000;

SceneFrames framesBesideCopies() {
    SceneFrames frames("scene");
    frames.setTimeOfCopy(copy);
    return frames;
}

TEST(SceneFramesTest, AMedianWithinTheLimitIsGood) {
    auto frames = framesBesideCopies();
    for (const auto time : {10 * most, most, 10 * most})
        frames.add(time, somePixels);
    EXPECT_FALSE(frames.isGood());
    frames.add(most, somePixels);
    frames.add(0.1 * most, somePixels);
    EXPECT_TRUE(frames.isGood());
}

TEST(SceneFramesTest, TheLimitIsToldInCopies) {
    auto frames = framesBesideCopies();
    frames.add(most, somePixels);
    EXPECT_TRUE(frames.isGood());
    frames.setTimeOfCopy(0.99 * copy);
    EXPECT_FALSE(frames.isGood());
}

TEST(SceneFramesTest, ASceneThatPaintedNothingIsNotGood) {
    auto frames = framesBesideCopies();
    EXPECT_FALSE(frames.isGood());
    frames.add(0.1 * most, 0);
    EXPECT_FALSE(frames.isGood());
    frames.add(0.1 * most, somePixels);
    EXPECT_TRUE(frames.isGood());
}

TEST(SceneFramesTest, AFasterSceneHasALowerMedian) {
    SceneFrames slow("scene");
    SceneFrames fast("scene");
    EXPECT_FALSE(fast.isFasterThan(slow)) << "nothing was painted";
    for (const auto time : {1.0, 2.0, 100.0})
        fast.add(time, somePixels);
    EXPECT_FALSE(fast.isFasterThan(slow));
    EXPECT_FALSE(slow.isFasterThan(fast));
    for (const auto time : {1.0, 2.5, 3.0})
        slow.add(time, somePixels);
    EXPECT_TRUE(fast.isFasterThan(slow));
    EXPECT_FALSE(slow.isFasterThan(fast));
    EXPECT_FALSE(slow.isFasterThan(slow));
}

TEST(SceneFramesTest, TheFirstIsTheDearerOfTwo) {
    SceneFrames frames("scene");
    for (const auto time : {1.0, 5.0, 9.0})
        frames.add(time, somePixels);
    EXPECT_EQ(frames.first(), 5);
}

TEST(SceneFramesTest, WhatComesBeforeTheFirstPictureCountsToo) {
    SceneFrames frames("scene");
    frames.add(9, 0);
    frames.add(1, somePixels);
    frames.add(5, somePixels);
    frames.add(10, 0);
    EXPECT_EQ(frames.first(), 9);
}

TEST(SceneFramesTest, AQuantileIsOneOfTheValues) {
    EXPECT_EQ(quantile({3, 1, 2}, 0.5), 2);
    EXPECT_EQ(quantile({3, 1, 2}, 1), 3);
    EXPECT_EQ(quantile({4}, 0.95), 4);
}

} // namespace
