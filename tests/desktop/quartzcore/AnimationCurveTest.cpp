#include "AnimationCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double tolerance = 1e-4;

TEST(AnimationCurve, BeginsAtNothingAndEndsWithAll) {
    for (const auto& curve : {AnimationCurve::easeInOut(), AnimationCurve::easeOut(),
                              AnimationCurve::linear(), AnimationCurve::system()}) {
        EXPECT_EQ(curve.progress(0), 0);
        EXPECT_EQ(curve.progress(1), 1);
    }
}

TEST(AnimationCurve, StandsStillBeforeItsBeginAndAfterItsEnd) {
    EXPECT_EQ(AnimationCurve::easeInOut().progress(-3), 0);
    EXPECT_EQ(AnimationCurve::easeInOut().progress(7), 1);
}

TEST(AnimationCurve, IsSteadyWhenLinear) {
    EXPECT_NEAR(AnimationCurve::linear().progress(0.3), 0.3, tolerance);
}

TEST(AnimationCurve, IsSlowAtBothEndsWhenEasedInAndOut) {
    const auto curve = AnimationCurve::easeInOut();
    EXPECT_NEAR(curve.progress(0.5), 0.5, tolerance);
    EXPECT_NEAR(curve.progress(0.1), 0.0197, tolerance);
    EXPECT_NEAR(curve.progress(0.9), 1 - 0.0197, tolerance);
}

TEST(AnimationCurve, EndsSlowlyWhenEasedOut) {
    EXPECT_NEAR(AnimationCurve::easeOut().progress(0.2), 0.31, 0.01);
    EXPECT_NEAR(AnimationCurve::easeOut().progress(0.8), 0.94, 0.02);
}

TEST(AnimationCurve, ComesCloseToASpringThatDoesNotSwingAsTheSystems) {
    constexpr auto frequency = 18.26; // radians per second
    for (auto percent = 0; percent <= 100; ++percent) {
        const auto seconds = AnimationCurve::systemDuration * percent / 100;
        const auto spring = 1 - (1 + frequency * seconds) * std::exp(-frequency * seconds);
        const auto progress = AnimationCurve::system().progress(seconds / AnimationCurve::systemDuration);
        EXPECT_NEAR(progress, spring, 0.1) << "after " << seconds;
    }
}

TEST(AnimationCurve, NeverGoesBack) {
    double before = 0;
    for (auto step = 1; step <= 100; ++step) {
        const auto now = AnimationCurve::system().progress(step / 100.0);
        EXPECT_GE(now, before);
        before = now;
    }
}

} // namespace
