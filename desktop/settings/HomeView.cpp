#include "HomeView.h"

#include "CALayerPeer.h"
#include "Device.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <memory>
#include <string>
#include <utility>

namespace {

const Class classObject = Class::define<HomeView, UIView>("HomeView");

constexpr Backdrop dockMaterial{.blurRadius = 30, .saturation = 1.6};
constexpr double dockWhite = 0.22; ///< the alpha of what lies over the blur

/// Where things are, in points.
struct Measures {
    double sideMargin;
    double topMargin; ///< below the status bar
    double dockMargin;
    double dockHeight;
    double dockRadius;
    double dockWidth; ///< 0 for all that the margins leave
};

constexpr Measures phone{
    .sideMargin = 27, .topMargin = 29, .dockMargin = 12, .dockHeight = 94, .dockRadius = 32, .dockWidth = 0};
constexpr Measures pad{.sideMargin = 92,
                       .topMargin = 62,
                       .dockMargin = 10,
                       .dockHeight = 102,
                       .dockRadius = 32,
                       .dockWidth = 560};

const Measures& measuresFor(const Traits& traits) {
    return traits.idiom == Idiom::Phone ? phone : pad;
}

std::string resource(const char* name) {
    return stringByAppendingPathComponent(Device::current().mainBundle()->path(), name);
}

class HomeViewPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    void traitsDidChange() override {
        UIViewPeer::traitsDidChange();
        dynamic_cast<HomeView&>(view()).updateWallpaper();
    }
};

} // namespace

HomeView::HomeView(std::function<void()> openSettings)
    : UIView(std::make_unique<HomeViewPeer>()),
      wallpaper_(make<UIImageView>()),
      dock_(make<UIView>()),
      settings_(make<HomeIcon>("Settings", resource("AppIcon.png"), std::move(openSettings))) {
    wallpaper_->setContentMode(UIViewContentMode::ScaleAspectFill);
    wallpaper_->setClipsToBounds(true);
    dock_->layer().peer().backdrop = dockMaterial;
    dock_->layer().peer().continuousCorners = true;
    dock_->layer().setMasksToBounds(true);
    dock_->setBackgroundColor(UIColor::colorWithRed(1, 1, 1, dockWhite));
    addSubview(wallpaper_);
    addSubview(dock_);
    addSubview(settings_);
    updateWallpaper();
}

void HomeView::updateWallpaper() {
    const bool isLight = peer().traits().style == UserInterfaceStyle::Light;
    wallpaper_->setImage(
        UIImage::imageWithContentsOfFile(resource(isLight ? "WallpaperLight.png" : "WallpaperDark.png")));
}

CGRect HomeView::settingsIconFrame() const {
    return settings_->peer().convertTo(*this, settings_->iconFrame());
}

void HomeView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& measures = measuresFor(peer().traits());
    const auto& size = bounds().size;
    const auto side = peer().traits().idiom == Idiom::Phone ? HomeIcon::phoneSide : HomeIcon::padSide;
    constexpr double nameHeight = 20;
    wallpaper_->setFrame(bounds());
    settings_->setFrame(CGRectMake(measures.sideMargin, peer().safeAreaInsets().top + measures.topMargin,
                                   side, side + nameHeight));
    const auto dockWidth = measures.dockWidth > 0 ? measures.dockWidth : size.width - 2 * measures.dockMargin;
    dock_->setFrame(CGRectMake((size.width - dockWidth) / 2,
                               size.height - measures.dockMargin - measures.dockHeight, dockWidth,
                               measures.dockHeight));
    dock_->layer().setCornerRadius(measures.dockRadius);
}
