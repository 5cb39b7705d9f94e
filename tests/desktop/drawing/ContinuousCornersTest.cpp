#include "ContinuousCorners.h"

#include "Ink.h"
#include "Steps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr double quarterTurn = std::numbers::pi / 2;

/// A path's points close to each other.
std::vector<QPointF> pointsAlong(const QPainterPath& path, double step) {
    std::vector<QPointF> points;
    const double length = path.length();
    for (const double at : steps(0, length, step))
        points.push_back(path.pointAtPercent(path.percentAtLength(at)));
    return points;
}

double turnBetween(QPointF one, QPointF other) {
    return std::atan2(one.x() * other.y() - one.y() * other.x(), QPointF::dotProduct(one, other));
}

struct Turns {
    double greatest = 0;
    double least = 0;
    double sum = 0;
};

/// By which angles a path turns where its parts meet, and within curves from one control point to the next.
Turns turnsOf(const QPainterPath& path) {
    std::vector<QPointF> directions;
    for (int index = 1; index < path.elementCount(); ++index) {
        const auto direction = QPointF(path.elementAt(index)) - QPointF(path.elementAt(index - 1));
        if (std::hypot(direction.x(), direction.y()) > 1e-6)
            directions.push_back(direction);
    }
    Turns turns;
    for (std::size_t index = 0; index < directions.size(); ++index) {
        const double turn = turnBetween(directions[index], directions[(index + 1) % directions.size()]);
        turns.greatest = std::max(turns.greatest, turn);
        turns.least = std::min(turns.least, turn);
        turns.sum += turn;
    }
    return turns;
}

/// The angles by which a path turns where one of its parts ends and the next begins.
double sharpestMeeting(const QPainterPath& path) {
    double sharpest = 0;
    for (int index = 1; index + 1 < path.elementCount(); ++index) {
        const auto type = path.elementAt(index + 1).type;
        if (type == QPainterPath::CurveToDataElement)
            continue;
        const auto before = QPointF(path.elementAt(index)) - QPointF(path.elementAt(index - 1));
        const auto after = QPointF(path.elementAt(index + 1)) - QPointF(path.elementAt(index));
        if (std::hypot(before.x(), before.y()) > 1e-6 && std::hypot(after.x(), after.y()) > 1e-6)
            sharpest = std::max(sharpest, std::abs(turnBetween(before, after)));
    }
    return sharpest;
}

double degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

} // namespace

TEST(ContinuousCornersTest, SidesAreStraightUpToTheCornersReach) {
    const auto path = continuousCornersPath({0, 0, 100, 80}, 10);
    EXPECT_TRUE(path.contains(QPointF(15.3, 0.02)));
    EXPECT_FALSE(path.contains(QPointF(10.0, 0.02)));
    EXPECT_TRUE(path.contains(QPointF(84.7, 79.98)));
    EXPECT_FALSE(path.contains(QPointF(99.98, 70.0)));
}

TEST(ContinuousCornersTest, ACornersMiddleIsCloseToTheCircles) {
    const auto path = continuousCornersPath({0, 0, 100, 100}, 20);
    const double inset = 20 * (1 - std::numbers::sqrt2 / 2);
    EXPECT_TRUE(path.contains(QPointF(inset + 0.1, inset + 0.1)));
    EXPECT_FALSE(path.contains(QPointF(inset - 0.2, inset - 0.2)));
}

TEST(ContinuousCornersTest, PartsMeetSmoothlyWhateverTheRoom) {
    for (const double radius : steps(1, 50, 0.5)) {
        const auto path = continuousCornersPath({3, 4, 100, 120}, radius);
        EXPECT_LT(degrees(sharpestMeeting(path)), 3) << radius;
    }
}

TEST(ContinuousCornersTest, TurnsOnlyClockwiseAndOnceAround) {
    for (const double radius : steps(1, 60, 0.5)) {
        const auto turns = turnsOf(continuousCornersPath({0, 0, 60, 100}, radius));
        EXPECT_GE(degrees(turns.least), -0.1) << radius;
        EXPECT_NEAR(turns.sum, 4 * quarterTurn, 0.001) << radius;
    }
}

TEST(ContinuousCornersTest, StaysWithinTheRectangleAndTouchesItsSides) {
    const QRectF rectangle(5, 7, 51, 31);
    for (const double radius : steps(0, 40, 1))
        EXPECT_EQ(continuousCornersPath(rectangle, radius).boundingRect(), rectangle) << radius;
}

TEST(ContinuousCornersTest, IsTheSameInAMirror) {
    const auto path = continuousCornersPath({-30, -20, 60, 40}, 9);
    for (const auto point : pointsAlong(path, 0.5)) {
        const QPointF inside = point * 0.995;
        const QPointF outside = point * 1.005;
        EXPECT_TRUE(path.contains(QPointF(-inside.x(), inside.y())));
        EXPECT_TRUE(path.contains(QPointF(inside.x(), -inside.y())));
        EXPECT_FALSE(path.contains(QPointF(-outside.x(), outside.y())));
        EXPECT_FALSE(path.contains(QPointF(outside.x(), -outside.y())));
    }
}

TEST(ContinuousCornersTest, ARadiusOfHalfTheSideMakesACircle) {
    for (const double radius : {20.0, 25.0, 1000.0}) {
        for (const auto point : pointsAlong(continuousCornersPath({-20, -20, 40, 40}, radius), 0.5))
            EXPECT_NEAR(std::hypot(point.x(), point.y()), 20, 0.02) << radius;
    }
}

TEST(ContinuousCornersTest, ARadiusOfHalfTheHeightMakesAPill) {
    const auto path = continuousCornersPath({0, 0, 51, 31}, 15.5);
    for (const auto point : pointsAlong(path, 0.5)) {
        const double toSpine = std::max({15.5 - point.x(), point.x() - 35.5, 0.0});
        EXPECT_NEAR(std::hypot(toSpine, point.y() - 15.5), 15.5, 0.02);
    }
}

TEST(ContinuousCornersTest, TheShapeChangesGraduallyWithTheRadius) {
    double previous = 100.0 * 100;
    for (const double radius : steps(0.25, 50, 0.25)) {
        const double area =
            alphaSum(filled(continuousCornersPath({0, 0, 100, 100}, radius), {100, 100}, 2)) / 4;
        EXPECT_LE(area, previous + 0.5) << radius;
        EXPECT_GT(area, previous - 60) << radius;
        previous = area;
    }
    EXPECT_NEAR(previous, std::numbers::pi * 2500, 10);
}

TEST(ContinuousCornersTest, CornersThatAreNotRoundAreSquare) {
    const RoundCorners topOnly{.bottomLeft = false, .bottomRight = false};
    const auto path = continuousCornersPath({0, 0, 100, 44}, 10, topOnly);
    EXPECT_FALSE(path.contains(QPointF(0.5, 0.5)));
    EXPECT_FALSE(path.contains(QPointF(99.5, 0.5)));
    EXPECT_TRUE(path.contains(QPointF(0.01, 43.99)));
    EXPECT_TRUE(path.contains(QPointF(99.99, 43.99)));
}

TEST(ContinuousCornersTest, EachCornerIsAskedForByItself) {
    const QRectF rectangle(0, 0, 100, 100);
    for (int rounded = 0; rounded < 16; ++rounded) {
        const RoundCorners corners{.topLeft = (rounded & 1) != 0,
                                   .topRight = (rounded & 2) != 0,
                                   .bottomLeft = (rounded & 4) != 0,
                                   .bottomRight = (rounded & 8) != 0};
        const auto path = continuousCornersPath(rectangle, 10, corners);
        EXPECT_EQ(path.contains(QPointF(0.5, 0.5)), !corners.topLeft) << rounded;
        EXPECT_EQ(path.contains(QPointF(99.5, 0.5)), !corners.topRight) << rounded;
        EXPECT_EQ(path.contains(QPointF(0.5, 99.5)), !corners.bottomLeft) << rounded;
        EXPECT_EQ(path.contains(QPointF(99.5, 99.5)), !corners.bottomRight) << rounded;
        EXPECT_TRUE(path.contains(QPointF(50, 50))) << rounded;
    }
}

TEST(ContinuousCornersTest, ACornerWithoutANeighbourHasItsWholeSide) {
    const RoundCorners one{.topRight = false, .bottomLeft = false, .bottomRight = false};
    const auto path = continuousCornersPath({0, 0, 40, 40}, 40, one);
    const QPointF center(40, 40);
    EXPECT_FALSE(path.contains(center - QPointF(28.6, 28.6)));
    EXPECT_TRUE(path.contains(center - QPointF(28.0, 28.0)));
}

TEST(ContinuousCornersTest, WithoutARadiusItIsTheRectangle) {
    for (const double radius : {0.0, -3.0}) {
        const auto path = continuousCornersPath({1, 2, 30, 40}, radius);
        EXPECT_TRUE(path.contains(QPointF(1.001, 2.001)));
        EXPECT_EQ(path.boundingRect(), QRectF(1, 2, 30, 40));
    }
}

TEST(ContinuousCornersTest, AnEmptyRectangleIsNoError) {
    EXPECT_EQ(alphaSum(filled(continuousCornersPath({1, 2, 0, 40}, 10), {50, 50}, 1)), 0);
}
