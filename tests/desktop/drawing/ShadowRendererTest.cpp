#include "ShadowRenderer.h"

#include "Ink.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr QSize canvas(120, 120);
const QRectF box(40, 40, 40, 40);

QPainterPath rectangle(const QRectF& area) {
    QPainterPath path;
    path.addRect(area);
    return path;
}

QImage shadowOf(const QRectF& area, const Shadow& shadow, double scale = 2) {
    ShadowRenderer renderer;
    return painted(canvas, scale,
                   [&](QPainter& painter) { renderer.paint(painter, rectangle(area), shadow); });
}

int alphaAt(const QImage& image, QPointF point) {
    return qAlpha(image.pixel((point * image.devicePixelRatio()).toPoint()));
}

void expectSame(const QImage& one, const QImage& other, int tolerance) {
    ASSERT_EQ(one.size(), other.size());
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            ASSERT_NEAR(qAlpha(one.pixel(x, y)), qAlpha(other.pixel(x, y)), tolerance) << x << ' ' << y;
    }
}

} // namespace

TEST(ShadowRendererTest, IsTheSameOnAllSides) {
    const auto image = shadowOf(box, {.radius = 6});
    expectSame(image, image.mirrored(true, false), 2);
    expectSame(image, image.mirrored(false, true), 2);
    expectSame(image, image.transformed(QTransform().rotate(90)), 2);
}

TEST(ShadowRendererTest, HoldsAsMuchAsTheShapeTimesTheOpacity) {
    for (const double opacity : {1.0, 0.4}) {
        for (const double scale : {1.0, 2.0, 3.0}) {
            const auto image = shadowOf(box, {.radius = 5, .opacity = opacity}, scale);
            EXPECT_NEAR(alphaSum(image) / (scale * scale), 40 * 40 * opacity, 40 * 40 * 0.02) << scale;
        }
    }
}

TEST(ShadowRendererTest, TheRadiusIsTheStandardDeviationOfTheEdge) {
    const double radius = 4;
    for (const int scale : {1, 2, 3}) {
        const auto image = shadowOf(box, {.radius = radius}, scale);
        for (int y = 25 * scale; y < 55 * scale; ++y) {
            const double inside = (y + 0.5) / scale - 40;
            const double expected = 0.5 * std::erfc(-inside / (radius * std::numbers::sqrt2));
            EXPECT_NEAR(qAlpha(image.pixel(60 * scale, y)), 255 * expected, 5) << y << " at " << scale;
        }
    }
}

TEST(ShadowRendererTest, IsMovedByTheOffset) {
    const auto moved = shadowOf(box, {.radius = 3, .offset = {7, -5}});
    const auto there = shadowOf(box.translated(7, -5), {.radius = 3});
    expectSame(moved, there, 0);
}

TEST(ShadowRendererTest, HasTheColorAndItsAlpha) {
    const auto image = shadowOf(box, {.radius = 2, .opacity = 0.5, .color = QColor(200, 100, 0, 128)});
    const auto pixel = image.pixelColor(120, 120);
    EXPECT_NEAR(pixel.alphaF(), 0.25, 0.01);
    EXPECT_NEAR(pixel.red(), 200, 3);
    EXPECT_NEAR(pixel.green(), 100, 3);
    EXPECT_EQ(pixel.blue(), 0);
}

TEST(ShadowRendererTest, WithoutARadiusItIsTheShape) {
    const auto image = shadowOf(box, {.radius = 0});
    EXPECT_EQ(inkOf(image), QRect(80, 80, 80, 80));
    EXPECT_EQ(alphaAt(image, {41, 41}), 255);
}

TEST(ShadowRendererTest, WithoutOpacityOrShapeNothingIsPainted) {
    EXPECT_TRUE(inkOf(shadowOf(box, {.opacity = 0}), 1).isEmpty());
    ShadowRenderer renderer;
    const auto image = painted(canvas, 1, [&](QPainter& painter) { renderer.paint(painter, {}, {}); });
    EXPECT_TRUE(inkOf(image, 1).isEmpty());
    EXPECT_EQ(renderer.madeCount(), 0U);
}

TEST(ShadowRendererTest, FollowsThePaintersTransformation) {
    ShadowRenderer renderer;
    const Shadow shadow{.radius = 3, .offset = {2, 0}};
    const auto scaled = painted(canvas, 2, [&](QPainter& painter) {
        painter.translate(40, 40);
        painter.scale(0.5, 0.5);
        renderer.paint(painter, rectangle({0, 0, 80, 80}), shadow);
    });
    expectSame(scaled, shadowOf(box, {.radius = 1.5, .offset = {1, 0}}), 1);
    const auto turned = painted(canvas, 2, [&](QPainter& painter) {
        painter.translate(60, 60);
        painter.rotate(90);
        renderer.paint(painter, rectangle({-20, -20, 40, 40}), shadow);
    });
    expectSame(turned, shadowOf(box, {.radius = 3, .offset = {0, 2}}), 1);
}

TEST(ShadowRendererTest, FollowsThePaintersOpacityAndClip) {
    ShadowRenderer renderer;
    const auto image = painted(canvas, 1, [&](QPainter& painter) {
        painter.setOpacity(0.5);
        painter.setClipRect(0, 0, 60, 120);
        renderer.paint(painter, rectangle(box), {.radius = 2});
        EXPECT_EQ(painter.opacity(), 0.5);
        EXPECT_TRUE(painter.transform().isIdentity());
    });
    EXPECT_NEAR(alphaAt(image, {55, 60}), 128, 2);
    EXPECT_EQ(alphaAt(image, {61, 60}), 0);
}

TEST(ShadowRendererTest, AnUnchangedShadowIsMadeOnceWhereverItIs) {
    ShadowRenderer renderer;
    static_cast<void>(painted(canvas, 3, [&](QPainter& painter) {
        for (int step = 0; step < 10; ++step) {
            painter.translate(1, 2);
            renderer.paint(painter, rectangle(box), {.radius = 5, .opacity = 0.1 * step + 0.1});
        }
    }));
    EXPECT_EQ(renderer.madeCount(), 1U);
}

TEST(ShadowRendererTest, AnotherShapeRadiusOrColorIsAnotherShadow) {
    ShadowRenderer renderer;
    static_cast<void>(painted(canvas, 1, [&](QPainter& painter) {
        renderer.paint(painter, rectangle(box), {.radius = 5});
        renderer.paint(painter, rectangle(box), {.radius = 6});
        renderer.paint(painter, rectangle(box), {.radius = 5, .color = Qt::red});
        renderer.paint(painter, rectangle(box.adjusted(0, 0, 1, 0)), {.radius = 5});
        renderer.paint(painter, rectangle(box), {.radius = 5});
    }));
    EXPECT_EQ(renderer.madeCount(), 4U);
}

TEST(ShadowRendererTest, ForgetsWhatWasNotPaintedForLongest) {
    ShadowRenderer renderer;
    const QRectF large(0, 0, 1500, 1500); // some 9 MB
    static_cast<void>(painted(canvas, 1, [&](QPainter& painter) {
        for (int index = 0; index < 8; ++index)
            renderer.paint(painter, rectangle(large.adjusted(0, 0, index, 0)), {.radius = 1});
        renderer.paint(painter, rectangle(large.adjusted(0, 0, 7, 0)), {.radius = 1});
        EXPECT_EQ(renderer.madeCount(), 8U);
        renderer.paint(painter, rectangle(large), {.radius = 1});
        EXPECT_EQ(renderer.madeCount(), 9U);
    }));
}

TEST(ShadowRendererTest, OfAnEnormousShapeThePartInSightIsPainted) {
    const auto image = shadowOf({40, -500'000, 40, 1'000'000}, {.radius = 4}, 1);
    EXPECT_NEAR(alphaAt(image, {60, 0}), 255, 2);
    EXPECT_NEAR(alphaAt(image, {60, 119}), 255, 2);
    EXPECT_NEAR(alphaAt(image, {40, 60}), 128, 16);
    EXPECT_EQ(alphaAt(image, {20, 60}), 0);
}
