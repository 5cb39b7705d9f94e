#include "DesktopBezierPath.h"

#include <gtest/gtest.h>

namespace {

TEST(DesktopBezierPath, FillsARectangleButForItsRoundCorners) {
    const auto path = dynamicCast<DesktopBezierPath>(
        UIBezierPath::bezierPathWithRoundedRect(CGRectMake(10, 20, 40, 30), 10));
    ASSERT_TRUE(path);
    EXPECT_EQ(path->path().boundingRect(), QRectF(10, 20, 40, 30));
    EXPECT_TRUE(path->path().contains(QPointF(30, 35)));
    EXPECT_FALSE(path->path().contains(QPointF(11, 21)));
    EXPECT_FALSE(path->path().contains(QPointF(49, 49)));
}

TEST(DesktopBezierPath, HasSquareCornersWithoutARadius) {
    const auto path =
        dynamicCast<DesktopBezierPath>(UIBezierPath::bezierPathWithRoundedRect(CGRectMake(0, 0, 40, 30), 0));
    EXPECT_TRUE(path->path().contains(QPointF(0.1, 0.1)));
}

} // namespace
