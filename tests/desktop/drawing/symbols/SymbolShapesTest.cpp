#include "symbols/SymbolShapes.h"

#include <gtest/gtest.h>

namespace {

QPainterPath ring(double outer, double inner) {
    QPainterPath path;
    path.addEllipse(QPointF(500, 500), outer, outer);
    QPainterPath hole;
    hole.addEllipse(QPointF(500, 500), inner, inner);
    return path.subtracted(hole);
}

} // namespace

TEST(SymbolShapesTest, AGrownShapeHasTheMarginOnBothSidesOfItsStroke) {
    const auto shape = grown(ring(400, 300), 50);
    EXPECT_NEAR(shape.boundingRect().width(), 900, 3);
    EXPECT_TRUE(shape.contains(QPointF(500 + 445, 500)));
    EXPECT_TRUE(shape.contains(QPointF(500 + 255, 500)));
    EXPECT_TRUE(shape.contains(QPointF(500 + 350, 500)));
    EXPECT_FALSE(shape.contains(QPointF(500 + 245, 500)));
    EXPECT_FALSE(shape.contains(QPointF(500, 500)));
}

TEST(SymbolShapesTest, WiderHolesLeaveTheOutsideAsItIs) {
    const auto shape = withWiderHoles(ring(400, 100), 50);
    EXPECT_NEAR(shape.boundingRect().width(), 800, 1);
    EXPECT_FALSE(shape.contains(QPointF(500 + 145, 500)));
    EXPECT_TRUE(shape.contains(QPointF(500 + 155, 500)));
    EXPECT_TRUE(shape.contains(QPointF(500 + 395, 500)));
}

TEST(SymbolShapesTest, AShapeWithoutHolesStaysAsItIs) {
    QPainterPath disc;
    disc.addEllipse(QPointF(500, 500), 300, 300);
    EXPECT_EQ(withWiderHoles(disc, 50), disc);
}
