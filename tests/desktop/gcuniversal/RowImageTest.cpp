#include "RowImage.h"

#include "DesktopImage.h"
#include "TestDevice.h"
#include "system/DarwinNotifications.h"

#include <gtest/gtest.h>

#include <QImage>
#include <fstream>

namespace {

class RowImageTest : public testing::Test {
protected:
    [[nodiscard]] std::string hostFile(const std::string& name) const { return files_.path() + "/" + name; }

    [[nodiscard]] std::string picture(const std::string& name) const {
        QImage image(8, 6, QImage::Format_RGB32);
        image.fill(Qt::blue);
        EXPECT_TRUE(image.save(QString::fromStdString(hostFile(name))));
        return hostFile(name);
    }

    [[nodiscard]] std::string file(const std::string& name, const std::string& content) const {
        std::ofstream(hostFile(name), std::ios::binary) << content;
        return hostFile(name);
    }

    [[nodiscard]] static std::string contentOf(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator(stream), {}};
    }

    static constexpr auto kept = "/var/jb/var/mobile/Library/Preferences/com.example.test/photo-IMG";

    TestDevice device;
    TemporaryFolder files_;
    Ref<DesktopSpecifier> row_ = make<DesktopSpecifier>(PropertyList::Dictionary{
        {"defaults", "com.example.test"}, {"key", "photo"}, {"PostNotification", "com.example.changed"}});
    RowImage image_{*row_};
};

} // namespace

TEST_F(RowImageTest, KeepsAPictureAsItIs) {
    for (const auto* const name : {"a.png", "a.jpg"}) {
        const auto source = picture(name);
        ASSERT_TRUE(image_.keep(source));
        EXPECT_EQ(device.read(kept), contentOf(source)) << name;
        ASSERT_TRUE(image_.image());
        EXPECT_EQ(DesktopImage::sizeOf(*image_.image()), (CGSize{8, 6}));
    }
    EXPECT_EQ(Device::current().notifications().take().size(), 2U);
}

TEST_F(RowImageTest, KeepsAPhotoOfATelephone) {
    const std::string photo = PICTURES "/upright.heic";
    ASSERT_TRUE(image_.keep(photo));
    EXPECT_EQ(device.read(kept), contentOf(photo));
    ASSERT_TRUE(image_.image());
    EXPECT_EQ(DesktopImage::sizeOf(*image_.image()), (CGSize{64, 32}));
}

TEST_F(RowImageTest, RefusesAPhotoOfATelephoneThatIsDamaged) {
    const auto photo = contentOf(PICTURES "/upright.heic");
    EXPECT_FALSE(image_.keep(file("a.heic", photo.substr(0, photo.size() / 2))));
    EXPECT_FALSE(image_.exists());
}

TEST_F(RowImageTest, GoesByTheContentAndNotByTheName) {
    const auto source = picture("a.png");
    EXPECT_TRUE(image_.keep(file("b.txt", contentOf(source))));
}

TEST_F(RowImageTest, RefusesWhatIsNoPictureAndChangesNothing) {
    ASSERT_TRUE(image_.keep(picture("a.png")));
    const auto before = device.read(kept);
    const auto cut = contentOf(picture("whole.png")).substr(0, 40);
    for (const auto& wrong : {file("c.png", "no picture"), file("d.png", ""), file("e.png", cut),
                              files_.path(), hostFile("missing.png"), picture("f.bmp"), std::string()}) {
        const auto outcome = image_.keep(wrong);
        EXPECT_FALSE(outcome) << wrong;
        EXPECT_FALSE(outcome.error().empty());
    }
    EXPECT_EQ(device.read(kept), before);
    EXPECT_EQ(Device::current().notifications().take().size(), 1U);
}

TEST_F(RowImageTest, ARowThatNamesNoPlaceKeepsNothing) {
    const auto source = picture("a.png");
    for (const auto* const name : {"", "..", "../other", "a/b"}) {
        const auto row =
            make<DesktopSpecifier>(PropertyList::Dictionary{{"defaults", name}, {"key", "photo"}});
        EXPECT_EQ(RowImage(*row).path(), "") << name;
        EXPECT_FALSE(RowImage(*row).keep(source)) << name;
        EXPECT_FALSE(RowImage(*row).exists());
        EXPECT_FALSE(RowImage(*row).image());
    }
}

TEST_F(RowImageTest, IsRemoved) {
    image_.remove();
    EXPECT_TRUE(Device::current().notifications().take().empty());
    ASSERT_TRUE(image_.keep(picture("a.png")));
    EXPECT_TRUE(image_.exists());
    image_.remove();
    EXPECT_FALSE(image_.exists());
    EXPECT_FALSE(image_.image());
    EXPECT_EQ(Device::current().notifications().take().size(), 2U);
}

TEST_F(RowImageTest, AFileThatIsNoPictureIsShownAsNone) {
    device.write(kept, "no picture");
    EXPECT_TRUE(image_.exists());
    EXPECT_FALSE(image_.image());
}
