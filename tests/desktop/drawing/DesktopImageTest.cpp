#include "DesktopImage.h"

#include "PngFile.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <filesystem>

namespace {

constexpr ColorComponents tint{.red = 0, .green = 1, .blue = 0};

QImage drawn(const DesktopImage& image, const CGRect& rect) {
    QImage picture(20, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    image.draw(painter, rect, tint);
    return picture;
}

Ref<DesktopImage> plain(QColor color, double scale = 1) {
    QImage picture(10, 10, QImage::Format_ARGB32);
    picture.fill(color);
    return make<DesktopImage>(picture, scale);
}

TEST(DesktopImage, IsReadFromAFileOfTheDevice) {
    const TestDevice device;
    device.write("/a/icon.png", pngFile(29, 20));
    const auto image = DesktopImage::withContentsOfFile("/a/icon.png", 1);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (CGSize{29, 20}));
    EXPECT_EQ(image->renderingMode(), UIImageRenderingMode::Automatic);
}

TEST(DesktopImage, HasThePixelsPerPointThatItsFileNameTells) {
    const TestDevice device;
    device.write("/icon@2x.png", pngFile(58, 58));
    device.write("/icon@3x.png", pngFile(87, 87));
    EXPECT_EQ(DesktopImage::withContentsOfFile("/icon@2x.png", 1)->size(), (CGSize{29, 29}));
    EXPECT_EQ(DesktopImage::withContentsOfFile("/icon@3x.png", 1)->size(), (CGSize{29, 29}));
}

TEST(DesktopImage, IsNothingWithoutAFileThatCanBeRead) {
    const TestDevice device;
    device.write("/text.png", "no picture");
    device.write("/cut.png", pngFile(50, 50).substr(0, 40));
    device.write("/empty.png", "");
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/missing.png", 1));
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/text.png", 1));
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/cut.png", 1));
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/empty.png", 1));
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/", 1));
}

TEST(DesktopImage, IsReadInThePixelsPerPointOfTheDisplayWhereAFileBesideItHasThem) {
    const TestDevice device;
    device.write("/icon.png", pngFile(10, 10, Qt::red));
    device.write("/icon@2x.png", pngFile(20, 20, Qt::green));
    const auto color = [](double scale) {
        const auto image = DesktopImage::withContentsOfFile("/icon.png", scale);
        EXPECT_EQ(image->size(), (CGSize{10, 10}));
        return drawn(*image, CGRectMake(0, 0, 20, 20)).pixelColor(10, 10);
    };
    EXPECT_EQ(color(1), QColor(Qt::red));
    EXPECT_EQ(color(2), QColor(Qt::green));
    EXPECT_EQ(color(3), QColor(Qt::green));
    ASSERT_TRUE(std::filesystem::remove(device.hostPath("/icon.png")));
    EXPECT_FALSE(DesktopImage::withContentsOfFile("/icon.png", 3));
}

TEST(DesktopImage, IsTakenInTheSizeThatSuitsTheDisplay) {
    const TestDevice device;
    device.write("/v1.0/icon.png", pngFile(10, 10, Qt::red));
    device.write("/v1.0/icon@2x.png", pngFile(20, 20, Qt::green));
    device.write("/v1.0/icon@3x.png", pngFile(30, 30, Qt::blue));
    const auto colorAt = [](double scale) {
        const auto image = DesktopImage::named("/v1.0/icon.png", scale);
        EXPECT_EQ(image->size(), (CGSize{10, 10}));
        return drawn(*image, CGRectMake(0, 0, 20, 20)).pixelColor(10, 10);
    };
    EXPECT_EQ(colorAt(1), QColor(Qt::red));
    EXPECT_EQ(colorAt(2), QColor(Qt::green));
    EXPECT_EQ(colorAt(3), QColor(Qt::blue));
}

TEST(DesktopImage, IsTakenInAnotherSizeWhereTheBestOneIsMissing) {
    const TestDevice device;
    device.write("/icon@2x.png", pngFile(20, 20));
    EXPECT_EQ(DesktopImage::named("/icon.png", 3)->size(), (CGSize{10, 10}));
    EXPECT_EQ(DesktopImage::named("/icon.png", 1)->size(), (CGSize{10, 10}));
    EXPECT_FALSE(DesktopImage::named("/other.png", 3));
}

TEST(DesktopImage, HasItsOwnColoursAsAPicture) {
    const TestDevice device;
    const auto image = plain(Qt::red);
    EXPECT_FALSE(image->isTemplate());
    const auto picture = drawn(*image, CGRectMake(5, 5, 10, 10));
    EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(4, 10), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(15, 10), QColor(Qt::white));
}

TEST(DesktopImage, IsAShapeInTheTintAsATemplate) {
    const TestDevice device;
    const auto image = dynamicCast<DesktopImage>(
        plain(Qt::red)->imageWithRenderingMode(UIImageRenderingMode::AlwaysTemplate));
    EXPECT_EQ(image->renderingMode(), UIImageRenderingMode::AlwaysTemplate);
    EXPECT_EQ(drawn(*image, CGRectMake(5, 5, 10, 10)).pixelColor(10, 10), QColor(Qt::green));
}

TEST(DesktopImage, KeepsAllItsPixelsWhenItIsShownMuchSmaller) {
    const TestDevice device;
    QImage stripes(160, 160, QImage::Format_ARGB32);
    for (auto y = 0; y < 160; ++y) {
        for (auto x = 0; x < 160; ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    const auto picture = drawn(*make<DesktopImage>(stripes, 1.0), CGRectMake(0, 0, 20, 20));
    EXPECT_NEAR(picture.pixelColor(10, 10).red(), 128, 3);
}

TEST(DesktopImage, IsATemplateAsASymbol) {
    const TestDevice device;
    const auto symbol = dynamicCast<DesktopImage>(UIImage::systemImageNamed("checkmark.circle.fill"));
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->symbolName(), "checkmark.circle.fill");
    EXPECT_TRUE(symbol->isTemplate());
    EXPECT_FALSE(UIImage::systemImageNamed("no.such.symbol"));
    const auto original =
        dynamicCast<DesktopImage>(symbol->imageWithRenderingMode(UIImageRenderingMode::AlwaysOriginal));
    EXPECT_FALSE(original->isTemplate());
    EXPECT_EQ(original->symbolName(), symbol->symbolName());
}

TEST(DesktopImage, IsDrawnInTheTintAndTheRectangleAsASymbol) {
    const TestDevice device;
    const auto symbol = DesktopImage::symbol("circle.fill", 17);
    ASSERT_TRUE(symbol);
    const auto picture = drawn(*symbol, CGRectMake(0, 0, 20, 20));
    EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::green));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
}

TEST(DesktopImage, GrowsWithThePointSizeAsASymbol) {
    const TestDevice device;
    const auto small = DesktopImage::symbol("gear", 10);
    const auto large = DesktopImage::symbol("gear", 20);
    EXPECT_NEAR(large->size().width, 2 * small->size().width, 1e-6);
}

} // namespace
