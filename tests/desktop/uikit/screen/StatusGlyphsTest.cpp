#include "screen/StatusGlyphs.h"

#include <gtest/gtest.h>

TEST(StatusGlyphsTest, TheWirelessOneIsAWedgeWithTwoArcsAboveIt) {
    const auto path = StatusGlyphs::wireless();
    const auto isFilled = [&path](double above) {
        return path.contains(QPointF(StatusGlyphs::wirelessWidth / 2, StatusGlyphs::height - above));
    };
    for (const auto above : {0.7, 1.5, 2.5, 5.0, 5.8, 10.0})
        EXPECT_TRUE(isFilled(above)) << above;
    for (const auto above : {0.1, 3.5, 7.5, 11.4})
        EXPECT_FALSE(isFilled(above)) << above;
}
