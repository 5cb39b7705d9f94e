#include "DesktopBundle.h"
#include "DesktopImage.h"
#include "Phone.h"
#include "PngFile.h"

namespace {

/// A tablet, whose display has two pixels per point.
class UIImageTest : public Phone {
protected:
    UIImageTest() : Phone({.idiom = Idiom::Pad, .scale = 2}) {}

    /// A picture file of so many pixels in both directions.
    void writePicture(const std::string& path, int pixels) { device.write(path, pngFile(pixels, pixels)); }
};

} // namespace

TEST_F(UIImageTest, AFileIsReadInThePixelsPerPointOfTheScreen) {
    writePicture("/icon.png", 10);
    writePicture("/icon@2x.png", 24);
    writePicture("/icon@3x.png", 30);
    const auto image = UIImage::imageWithContentsOfFile("/icon.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(dynamic_cast<DesktopImage&>(*image).size(), (CGSize{12, 12}));
}

TEST_F(UIImageTest, AMissingFileIsNoImage) {
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("/icon.png"));
}

TEST_F(UIImageTest, APictureIsFoundByItsPlainNameWhereOnlyOneForADisplayIsThere) {
    writePicture("/icon@2x.png", 24);
    const auto image = UIImage::imageNamed("/icon.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(DesktopImage::sizeOf(*image), (CGSize{12, 12}));
    EXPECT_FALSE(UIImage::imageNamed("/other.png"));
}

TEST_F(UIImageTest, APictureIsFoundByItsNameInABundle) {
    writePicture("/Test.bundle/icon.png", 24);
    const auto bundle = DesktopBundle::withPath("/Test.bundle");
    EXPECT_TRUE(UIImage::imageNamed("icon.png", *bundle));
    EXPECT_FALSE(UIImage::imageNamed("other.png", *bundle));
}
