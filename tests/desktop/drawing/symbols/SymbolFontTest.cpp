#include "symbols/SymbolFont.h"

#include <gtest/gtest.h>

namespace {

constexpr double em = SymbolFont::unitsPerEm;

} // namespace

TEST(SymbolFontTest, ACircleIsAsLargeAsTheTextBesideIt) {
    const auto circle = SymbolFont().icon("circle");
    ASSERT_TRUE(circle);
    EXPECT_NEAR(circle->boundingRect().width(), 0.996 * em, 0.01 * em);
    EXPECT_NEAR(circle->boundingRect().height(), 0.996 * em, 0.01 * em);
}

TEST(SymbolFontTest, AnIconPointsDownwardsAsPaintersDo) {
    const auto triangle = SymbolFont().icon("exclamationmark_triangle_fill");
    ASSERT_TRUE(triangle);
    const auto box = triangle->boundingRect();
    EXPECT_TRUE(
        triangle->contains(QPointF(box.left() + 0.1 * box.width(), box.bottom() - 0.05 * box.height())));
    EXPECT_FALSE(
        triangle->contains(QPointF(box.left() + 0.1 * box.width(), box.top() + 0.05 * box.height())));
}

TEST(SymbolFontTest, NamesWithDigitsAndSignsOfTheirOwnAreThere) {
    const SymbolFont font;
    for (const auto* const name :
         {"plus", "minus", "ellipsis", "percent", "at", "battery_100", "square_split_2x2"})
        EXPECT_TRUE(font.icon(name)) << name;
}

TEST(SymbolFontTest, OtherWordsAreNoIcons) {
    const SymbolFont font;
    for (const auto* const name : {"", "a", "nosuchicon", "gearx", "xgear", "gear gear", "gear_", "gear.alt",
                                   "Gear", "\xFF", "é", "_", "1"})
        EXPECT_FALSE(font.icon(name)) << name;
}
