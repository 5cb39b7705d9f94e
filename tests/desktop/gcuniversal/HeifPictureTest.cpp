#include "HeifPicture.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

constexpr int tolerance = 12; ///< of a channel: HEVC keeps colours as brightness and difference

/// A file of 64 by 32 pixels, made by libheif: red, with a blue upper left quarter. "turned" says of itself
/// that it is to be turned to the right by a quarter.
QByteArray content(const QString& name) {
    QFile file(QStringLiteral(PICTURES "/") + name + QStringLiteral(".heic"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void expectColor(const QImage& picture, QPoint point, const QColor& expected) {
    const auto color = picture.pixelColor(point);
    EXPECT_NEAR(color.red(), expected.red(), tolerance) << point.x() << ", " << point.y();
    EXPECT_NEAR(color.green(), expected.green(), tolerance) << point.x() << ", " << point.y();
    EXPECT_NEAR(color.blue(), expected.blue(), tolerance) << point.x() << ", " << point.y();
    EXPECT_EQ(color.alpha(), 255);
}

} // namespace

TEST(HeifPictureTest, HasThePixelsOfTheFile) {
    ASSERT_TRUE(isHeif(content("upright")));
    const auto picture = heifPicture(content("upright"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(64, 32));
    expectColor(*picture, {8, 8}, Qt::blue);
    expectColor(*picture, {56, 8}, Qt::red);
    expectColor(*picture, {8, 24}, Qt::red);
}

TEST(HeifPictureTest, IsTurnedAsItIsToBeSeen) {
    const auto picture = heifPicture(content("turned"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(32, 64));
    expectColor(*picture, {24, 8}, Qt::blue);
    expectColor(*picture, {8, 8}, Qt::red);
}

TEST(HeifPictureTest, OfADamagedFileThereIsNone) {
    const auto whole = content("upright");
    for (const auto size : {qsizetype{0}, qsizetype{8}, qsizetype{12}, whole.size() / 2, whole.size() - 1})
        EXPECT_FALSE(heifPicture(whole.first(size))) << size;
}

TEST(HeifPictureTest, OneThatIsTooLargeIsLeftAlone) {
    constexpr std::int64_t pixelCount = 2048;
    EXPECT_TRUE(heifPicture(content("upright"), pixelCount));
    EXPECT_FALSE(heifPicture(content("upright"), pixelCount - 1));
}

TEST(HeifPictureTest, OtherFilesAreNotOfTheKind) {
    for (const auto* const other : {"", "ftypheic", "\x89PNG\r\n\x1a\n0000", "no picture at all"})
        EXPECT_FALSE(isHeif(other)) << other;
}
