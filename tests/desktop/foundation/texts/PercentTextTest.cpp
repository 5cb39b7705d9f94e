#include "texts/PercentText.h"

#include <gtest/gtest.h>

TEST(PercentTextTest, TheWholeIsWrittenAsTheLocaleDoes) {
    EXPECT_EQ(percentText(1, "en_US"), "100%");
    EXPECT_EQ(percentText(1, "de_DE"), "100\u00a0%");
    EXPECT_EQ(percentText(1, "ar_EG"), "\u0661\u0660\u0660\u066a\u061c");
}

TEST(PercentTextTest, PartsHaveNoDigitsBehindThePoint) {
    EXPECT_EQ(percentText(0.426, "en_US"), "43%");
    EXPECT_EQ(percentText(0, "en_US"), "0%");
}
