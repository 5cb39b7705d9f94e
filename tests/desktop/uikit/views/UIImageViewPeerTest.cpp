#include "views/UIImageViewPeer.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

class UIImageViewPeerTest : public testing::Test {
protected:
    UIImageViewPeerTest() {
        view_->setFrame(CGRectMake(10, 10, 20, 10));
        shown_.window->addSubview(view_);
    }

    static Ref<UIImage> image(int width, int height) {
        QImage picture(width, height, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        return make<DesktopImage>(picture, 1.0);
    }

    [[nodiscard]] CGRect placed(UIViewContentMode mode) const {
        view_->setContentMode(mode);
        return peerOf<UIImageViewPeer>(*view_).imageRect(view_->bounds());
    }

    ShownScreen shown_;
    Ref<UIImageView> view_ = make<UIImageView>();
};

TEST_F(UIImageViewPeerTest, LaysItsImageAsItsContentModeSays) {
    view_->setImage(image(8, 8));
    EXPECT_EQ(placed(UIViewContentMode::ScaleToFill), CGRectMake(0, 0, 20, 10));
    EXPECT_EQ(placed(UIViewContentMode::ScaleAspectFit), CGRectMake(5, 0, 10, 10));
    EXPECT_EQ(placed(UIViewContentMode::ScaleAspectFill), CGRectMake(0, -5, 20, 20));
    EXPECT_EQ(placed(UIViewContentMode::Center), CGRectMake(6, 1, 8, 8));
}

TEST_F(UIImageViewPeerTest, CentresAnImageOnWholePixels) {
    view_->setImage(image(7, 7));
    EXPECT_EQ(placed(UIViewContentMode::Center), CGRectMake(7, 2, 7, 7));
}

TEST_F(UIImageViewPeerTest, HasItsImagesSize) {
    auto& peer = peerOf<UIImageViewPeer>(*view_);
    EXPECT_EQ(peer.intrinsicWidth(), std::nullopt);
    EXPECT_EQ(peer.intrinsicHeight(), std::nullopt);
    view_->setImage(image(8, 6));
    EXPECT_EQ(peer.intrinsicWidth(), 8);
    EXPECT_EQ(peer.intrinsicHeight(), 6);
    peer.sizeToFit();
    EXPECT_EQ(view_->frame(), CGRectMake(10, 10, 8, 6));
}

TEST_F(UIImageViewPeerTest, GivesItsImageBack) {
    EXPECT_FALSE(view_->image());
    const auto picture = image(3, 3);
    view_->setImage(picture);
    EXPECT_EQ(view_->image(), picture);
    view_->setImage(nullptr);
    EXPECT_FALSE(view_->image());
}

TEST_F(UIImageViewPeerTest, PaintsWhatReachesOverItsEdges) {
    view_->setImage(image(30, 4));
    view_->setContentMode(UIViewContentMode::Center);
    EXPECT_EQ(shown_.pixel(6, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(34, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(4, 15), QColor(Qt::white));
    view_->setImage(nullptr);
    EXPECT_EQ(shown_.pixel(6, 15), QColor(Qt::white));
    EXPECT_EQ(shown_.pixel(34, 15), QColor(Qt::white));
}

TEST_F(UIImageViewPeerTest, CutsThatOffWhenItClips) {
    view_->setImage(image(30, 4));
    view_->setContentMode(UIViewContentMode::Center);
    view_->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(10, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(9, 15), QColor(Qt::white));
}

TEST_F(UIImageViewPeerTest, PaintsTemplatesInItsTint) {
    view_->setImage(image(20, 10)->imageWithRenderingMode(UIImageRenderingMode::AlwaysTemplate));
    view_->peer().setTintColor(DesktopColor::fixed(green));
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::green));
    view_->peer().setTintColor(DesktopColor::fixed(blue));
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::blue));
}

TEST_F(UIImageViewPeerTest, TellsOfItsSymbol) {
    EXPECT_TRUE(view_->peer().inspectedProperties().empty());
    view_->setImage(UIImage::systemImageNamed("gear"));
    const auto properties = view_->peer().inspectedProperties();
    EXPECT_EQ(properties.at("symbol"), PropertyList("gear"));
    EXPECT_EQ(properties.at("template"), PropertyList(true));
}

} // namespace
