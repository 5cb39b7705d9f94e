#include "PainterBands.h"

#include <gtest/gtest.h>

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

constexpr QSize pictureSize(300, 400);
const QRectF place(10.3, 7.6, 150.4, 250.2);

/// Every pixel another one.
QImage colorful(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, (x * y) % 256, 255 - (x + y) % 100));
    }
    return image;
}

QImage painted(double scale, const std::function<void(QPainter&)>& paint) {
    QImage picture(pictureSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipRegion(QRegion(20, 20, 200, 300) | QRegion(0, 100, 300, 20));
    painter.scale(scale, scale);
    paint(painter);
    return picture;
}

int rowsOf(const std::vector<QRect>& bands) {
    auto rows = 0;
    for (const auto& band : bands)
        rows += band.height();
    return rows;
}

/// Of any component of any pixel.
int greatestDifference(const QImage& one, const QImage& other) {
    auto greatest = 0;
    for (qsizetype byte = 0; byte < one.sizeInBytes(); ++byte)
        greatest = std::max(greatest, std::abs(one.constBits()[byte] - other.constBits()[byte]));
    return greatest;
}

} // namespace

TEST(PainterBandsTest, ARegionsBandsAreAllOfItAndHaveFewRows) {
    const auto region = QRegion(3, 5, 10, 200) | QRegion(40, 0, 5, 10);
    const auto bands = PainterBands::of(region);
    QRegion all;
    for (const auto& band : bands) {
        EXPECT_LE(band.height(), 64);
        EXPECT_FALSE(all.intersects(band));
        all |= band;
    }
    EXPECT_EQ(all, region);
    EXPECT_EQ(rowsOf(PainterBands::of(QRect(0, 0, 1, 130))), 130);
    EXPECT_TRUE(PainterBands::of({}).empty());
}

TEST(PainterBandsTest, APictureHasTheSamePixelsAsWithoutBands) {
    const auto image = colorful({200, 300});
    EXPECT_EQ(painted(1, [&](QPainter& painter) { PainterBands::draw(painter, QPointF(8, 4), image); }),
              painted(1, [&](QPainter& painter) { painter.drawImage(QPointF(8, 4), image); }));
    EXPECT_EQ(painted(1.25, [&](QPainter& painter) { PainterBands::draw(painter, place, image); }),
              painted(1.25, [&](QPainter& painter) { painter.drawImage(place, image); }));
}

TEST(PainterBandsTest, WhatIsPaintedBandByBandHasTheSamePixels) {
    const QColor color(0, 80, 255, 100);
    for (const auto scale : {1.0, 1.25}) {
        const auto fill = [&](QPainter& painter) { painter.fillRect(place, color); };
        EXPECT_EQ(
            painted(scale,
                    [&](QPainter& painter) { PainterBands::paint(painter, place, [&] { fill(painter); }); }),
            painted(scale, fill));
    }
}

TEST(PainterBandsTest, GradientsDifferByTheirLastBitAtMost) {
    QLinearGradient gradient(place.topLeft(), place.bottomRight());
    gradient.setColorAt(0, QColor(255, 59, 48));
    gradient.setColorAt(1, QColor(0, 80, 255, 100));
    for (const auto scale : {1.0, 1.25}) {
        const auto fill = [&](QPainter& painter) { painter.fillRect(place, gradient); };
        const auto whole = painted(scale, fill);
        const auto inBands = painted(
            scale, [&](QPainter& painter) { PainterBands::paint(painter, place, [&] { fill(painter); }); });
        EXPECT_LE(greatestDifference(whole, inBands), 1);
    }
}

TEST(PainterBandsTest, NothingIsPaintedMoreThanOnceOrWhereNothingIsSeen) {
    auto rows = 0.0;
    const auto count = [&rows](QPainter& painter) {
        const QRectF all(0, -500, 300, 2000);
        PainterBands::paint(painter, all, [&] {
            EXPECT_FALSE(painter.clipBoundingRect().isEmpty());
            rows += painter.clipBoundingRect().height();
        });
    };
    static_cast<void>(painted(1, count));
    EXPECT_EQ(rows, 300); // of the clip
}

/// As many pieces of rows as 64 rows with soft edges have are shared out to threads.
TEST(PainterBandsTest, RowsWithSoftEdgesAreFew) {
    auto most = 0.0;
    static_cast<void>(painted(1, [&most](QPainter& painter) {
        PainterBands::paint(painter, place,
                            [&] { most = std::max(most, painter.clipBoundingRect().height()); });
    }));
    EXPECT_GT(most, 16);
    EXPECT_LT(most * 3, 96);
}

TEST(PainterBandsTest, ThePainterIsAsItWasBefore) {
    QImage picture(pictureSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.translate(3, 4);
    painter.setClipRect(0, 0, 50, 390);
    const auto transform = painter.worldTransform();
    const auto clip = painter.clipBoundingRect();
    PainterBands::draw(painter, place, colorful({20, 20}));
    EXPECT_EQ(painter.worldTransform(), transform);
    EXPECT_EQ(painter.clipBoundingRect(), clip);
}
