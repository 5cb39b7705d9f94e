#include "FontStyle.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(FontStyleTest, MeasuresAreInProportionToTheSizeAndNotTheWeight) {
    for (const auto weight : {FontWeight::Regular, FontWeight::Bold}) {
        const FontStyle style{.size = 100, .weight = weight};
        EXPECT_DOUBLE_EQ(style.ascent(), 95.2);
        EXPECT_DOUBLE_EQ(style.lineHeight(), 119.3);
        EXPECT_DOUBLE_EQ(style.capHeight(), 70.5);
    }
}
