#include "FontFaces.h"
#include "Ink.h"
#include "TextLayout.h"

#include <gtest/gtest.h>

#include <QPainterPath>
#include <QTransform>
#include <cmath>

namespace {

QImage paintedText(const TextLayout& layout, QPointF origin, double scale, const QColor& color = Qt::black) {
    return painted({200, 60}, scale, [&](QPainter& painter) { layout.paint(painter, origin, color); });
}

/// The area that the font's outlines enclose, in square points.
double areaOf(const QString& text, const FontStyle& style) {
    constexpr double fineness = 16; // of what curves are cut into
    QPainterPath outlines;
    outlines.addText({}, FontFaces::font(style), text);
    double twice = 0;
    for (const auto& outline : outlines.toSubpathPolygons(QTransform::fromScale(fineness, fineness))) {
        for (qsizetype index = 1; index < outline.size(); ++index) {
            const auto from = outline[index - 1];
            const auto to = outline[index];
            twice += from.x() * to.y() - to.x() * from.y();
        }
    }
    const auto unit = FontFaces::unit(style) / fineness;
    return std::abs(twice) / 2 * unit * unit;
}

/// How far the pixels are from the background to the text's color, all together, in square points.
double inkOn(const QColor& background, const QColor& color, const TextLayout& layout, double scale) {
    const auto image = painted({200, 60}, scale, [&](QPainter& painter) {
        painter.fillRect(QRect(0, 0, 200, 60), background);
        layout.paint(painter, {10, 8}, color);
    });
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += std::abs(image.pixelColor(x, y).greenF() - background.greenF());
    }
    return sum / std::abs(color.greenF() - background.greenF()) / (scale * scale);
}

} // namespace

TEST(TextLayoutPaintTest, CapitalsStandOnTheBaselineAndAreAsHighAsCapitalsAre) {
    for (const double scale : {1.0, 2.0, 3.0}) {
        for (const double size : {13.0, 17.0, 34.0}) {
            const FontStyle style{.size = size};
            const TextLayout layout("HEH", style);
            const auto ink = inkOf(paintedText(layout, {10, 8}, scale), 100);
            EXPECT_NEAR(ink.bottom() + 1, (8 + layout.baseline(0)) * scale, 1.01) << size << " at " << scale;
            EXPECT_NEAR(ink.height(), style.capHeight() * scale, 1.3) << size << " at " << scale;
        }
    }
}

TEST(TextLayoutPaintTest, InkIsWithinTheLine) {
    const TextLayout layout("Settings", {.size = 17});
    const auto ink = inkOf(paintedText(layout, {10, 8}, 3));
    const auto line = layout.lineRect(0).translated(10, 8);
    EXPECT_GE(ink.left(), 3 * line.left() - 1);
    EXPECT_LE(ink.right(), 3 * line.right() + 1);
    EXPECT_GE(ink.width(), 3 * line.width() - 12);
    EXPECT_GE(ink.top(), 3 * line.top());
    EXPECT_LE(ink.bottom(), 3 * line.bottom());
}

TEST(TextLayoutPaintTest, EachLineIsOnItsOwnBaseline) {
    const TextLayout layout("H\nH", {.size = 20});
    const auto image = paintedText(layout, {0, 0}, 2);
    const auto secondTop = static_cast<int>(2 * layout.lineRect(1).top());
    const auto first = inkOf(image.copy(0, 0, image.width(), secondTop), 100);
    const auto second = inkOf(image.copy(0, secondTop, image.width(), image.height() - secondTop), 100);
    EXPECT_NEAR(first.bottom() + 1, 2 * layout.baseline(0), 1.01);
    EXPECT_NEAR(secondTop + second.bottom() + 1, 2 * layout.baseline(1), 1.01);
}

TEST(TextLayoutPaintTest, TheColorIsThatOfTheText) {
    const auto image = paintedText(TextLayout("█", {.size = 30}), {0, 0}, 3, QColor(255, 0, 0, 128));
    const auto pixel = image.pixelColor(30, 60);
    EXPECT_NEAR(pixel.alpha(), 128, 1);
    EXPECT_EQ(pixel.red(), 255);
    EXPECT_EQ(pixel.green(), 0);
}

TEST(TextLayoutPaintTest, LettersAreAsHeavyAsTheirOutlinesOnEveryBackground) {
    for (const double size : {11.0, 13.0, 17.0, 34.0}) {
        const FontStyle style{.size = size};
        const TextLayout layout("Ask Before", style);
        const auto area = areaOf("Ask Before", style);
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            EXPECT_NEAR(inkOn(Qt::white, Qt::black, layout, scale) / area, 1, 0.02)
                << size << " at " << scale;
            EXPECT_NEAR(inkOn(Qt::black, Qt::white, layout, scale) / area, 1, 0.02)
                << size << " at " << scale;
            EXPECT_NEAR(inkOn(QColor(28, 28, 30), QColor(235, 235, 245), layout, scale) / area, 1, 0.02)
                << size << " at " << scale;
        }
    }
}

/// Of a few pixels each, dots and small curves are what a rasteriser makes smaller first.
TEST(TextLayoutPaintTest, RoundLettersAndDotsAreAsHeavyAsTheirOutlinesWhereTheyHaveFewPixels) {
    for (const auto* const text : {"Größe ÄÖÜ", "illi.;,il", "إعدادات"}) {
        for (const double size : {10.0, 12.0, 15.0, 20.0}) {
            const FontStyle style{.size = size};
            const TextLayout layout(text, style);
            const auto area = areaOf(text, style);
            for (const double scale : {1.0, 1.25, 1.5})
                EXPECT_NEAR(inkOn(Qt::white, Qt::black, layout, scale) / area, 1, 0.01)
                    << text << ", " << size << " at " << scale;
        }
    }
}

TEST(TextLayoutPaintTest, ALineStandsOnWholePixelsWhereverItIs) {
    const TextLayout layout("HEH", {.size = 17});
    for (const double scale : {1.0, 1.5, 2.0}) {
        for (const double top : {8.0, 8.25, 8.5, 8.75}) {
            const auto image = paintedText(layout, {10, top}, scale);
            const auto ink = inkOf(image, 1);
            const auto last = image.copy(ink.left(), ink.bottom(), ink.width(), 1);
            EXPECT_GT(alphaSum(last), 5 * scale) << top << " at " << scale;
            EXPECT_EQ(inkOf(last, 200).isEmpty(), false) << top << " at " << scale;
        }
    }
}

TEST(TextLayoutPaintTest, APartIsPaintedAsInTheWhole) {
    const TextLayout layout("Ask Before Resetting", {.size = 17});
    const auto whole = paintedText(layout, {10.3, 8.7}, 2);
    const QRect part(61, 20, 40, 25);
    const auto image = painted({200, 60}, 2, [&](QPainter& painter) {
        painter.setClipRect(QRectF(part.x() / 2.0, part.y() / 2.0, part.width() / 2.0, part.height() / 2.0));
        layout.paint(painter, {10.3, 8.7}, Qt::black);
    });
    EXPECT_EQ(image.copy(part), whole.copy(part));
    EXPECT_NEAR(alphaSum(image), alphaSum(whole.copy(part)), 1e-9);
}

TEST(TextLayoutPaintTest, ALetterThatReachesBeyondItsLineIsPaintedWhole) {
    constexpr double left = 20;
    const auto ink = inkOf(paintedText(TextLayout("j", {.size = 34}), {left, 15}, 3));
    EXPECT_LT(ink.left(), 3 * left);
}

TEST(TextLayoutPaintTest, AnEllipsisIsPainted) {
    const TextLayout cut("IIIIIIIIIIIIIIIIIIIIIIIIIII", {.size = 17},
                         {.maximumWidth = 60, .maximumLines = 1});
    const auto ink = inkOf(paintedText(cut, {0, 0}, 3));
    EXPECT_LE(ink.right(), 60 * 3);
    const auto image = paintedText(cut, {0, 0}, 3);
    const auto dots = inkOf(image.copy(ink.right() - 20, 0, 21, image.height()));
    EXPECT_LT(dots.height(), 9) << "dots are low, letters would be high";
    EXPECT_GT(dots.width(), 12);
}

TEST(TextLayoutPaintTest, ThePainterIsAsItWas) {
    static_cast<void>(painted({50, 50}, 1, [](QPainter& painter) {
        painter.setPen(Qt::green);
        TextLayout("long enough to be cut", {}, {.maximumWidth = 20, .maximumLines = 1})
            .paint(painter, {0, 0}, Qt::red);
        EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
        EXPECT_FALSE(painter.hasClipping());
    }));
}

TEST(TextLayoutPaintTest, PositionsWithinAPixelShow) {
    const TextLayout layout("l", {.size = 17});
    EXPECT_NE(paintedText(layout, {10, 8}, 1), paintedText(layout, {10.5, 8}, 1));
}
