#include "PictureRows.h"

#include "BlankPicture.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QRgb>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace {

constexpr auto rows = PixelWork::rowsAtOnce;

/// Each pixel tells where it is.
QColor colorAt(int x, int y) {
    return {x, y, 77};
}

void fillWithPlaces(QImage& target, const QRect& pixels, QPoint corner) {
    for (auto y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (auto x = pixels.left(); x <= pixels.right(); ++x)
            target.setPixelColor(x - corner.x(), y - corner.y(), colorAt(x, y));
    }
}

std::vector<QColor> colorsOf(std::span<const std::uint8_t> row) {
    constexpr std::size_t bytes = 4;
    std::vector<QColor> colors;
    for (auto place = row; !place.empty(); place = place.subspan(bytes))
        colors.push_back(QColor::fromRgb(*reinterpret_cast<const QRgb*>(place.data())));
    return colors;
}

std::vector<QColor> placesOf(int y, int left, int width) {
    std::vector<QColor> colors;
    for (auto x = left; x < left + width; ++x)
        colors.push_back(colorAt(x, y));
    return colors;
}

/// Of which the rows in the middle are made, which writes down what of.
class PictureRowsTest : public testing::Test {
protected:
    PictureRowsTest() {
        PixelWork work;
        work.add(middle_, [this](QImage& target, const QRect& pixels, QPoint corner) {
            made_.push_back(pixels);
            fillWithPlaces(target, pixels, corner);
        });
        rows_ = {picture_, picture_.size(), middle_, std::move(work)};
    }

    const QRect middle_{0, 10, 30, 100};
    QImage picture_ = blank({30, 120}, Qt::white);
    std::vector<QRect> made_;
    PictureRows rows_{picture_};
};

TEST_F(PictureRowsTest, AreThoseOfAPicture) {
    auto picture = blank({5, 4}, Qt::white);
    fillWithPlaces(picture, picture.rect(), {});
    PictureRows all(picture);
    EXPECT_EQ(all.size(), QSize(5, 4));
    EXPECT_EQ(colorsOf(all.row(2, 1, 3)), placesOf(2, 1, 3));
    EXPECT_EQ(all.row(3, 0, 5).data(), picture.constScanLine(3));
}

TEST_F(PictureRowsTest, AreMadeWhereTheyAreNotInThePicture) {
    EXPECT_EQ(rows_.size(), picture_.size());
    EXPECT_EQ(colorsOf(rows_.row(9, 3, 1)), std::vector{QColor(Qt::white)});
    for (auto y = middle_.top(); y <= middle_.bottom(); ++y)
        ASSERT_EQ(colorsOf(rows_.row(y, 3, 20)), placesOf(y, 3, 20)) << y;
    EXPECT_EQ(colorsOf(rows_.row(110, 3, 1)), std::vector{QColor(Qt::white)});
}

TEST_F(PictureRowsTest, AreMadeAFewAtOnceAndOfWhatIsAskedForAlone) {
    for (auto y = 20; y < 20 + rows; ++y)
        static_cast<void>(rows_.row(y, 3, 20));
    EXPECT_EQ(made_, std::vector{QRect(3, 20, 20, rows)});
    static_cast<void>(rows_.row(20 + rows, 3, 20));
    EXPECT_EQ(made_, (std::vector{QRect(3, 20, 20, rows), QRect(3, 20 + rows, 20, rows)}));
}

TEST_F(PictureRowsTest, OneIsThereWhileTheNextIsAskedFor) {
    for (auto y = middle_.top(); y < middle_.bottom(); ++y) {
        const auto row = rows_.row(y, 0, 30);
        static_cast<void>(rows_.row(y + 1, 0, 30));
        ASSERT_EQ(colorsOf(row), placesOf(y, 0, 30)) << y;
    }
    const auto nearlyAll = middle_.height() - 1;
    EXPECT_LE(static_cast<int>(made_.size()), nearlyAll / rows + 1);
}

TEST_F(PictureRowsTest, OneIsThereWhileTheNextIsAskedForAfterAnotherPartWas) {
    static_cast<void>(rows_.row(20, 0, 30));
    static_cast<void>(rows_.row(80, 0, 30));
    const auto last = rows_.row(20 + rows - 1, 0, 30);
    EXPECT_EQ(colorsOf(rows_.row(20 + rows, 0, 30)), placesOf(20 + rows, 0, 30));
    EXPECT_EQ(colorsOf(last), placesOf(20 + rows - 1, 0, 30));
}

} // namespace
