#pragma once

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

/// A small screen, and shorthand for what its pictures show.
class CompositorFixture : public testing::Test {
protected:
    static void expectNear(const QColor& color, const QColor& expected) {
        constexpr auto tolerance = 2;
        EXPECT_NEAR(color.red(), expected.red(), tolerance);
        EXPECT_NEAR(color.green(), expected.green(), tolerance);
        EXPECT_NEAR(color.blue(), expected.blue(), tolerance);
    }

    ShownScreen shown_;
};
