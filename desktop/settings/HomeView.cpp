#include "HomeView.h"

#include "DesktopBundle.h"
#include "Device.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "views/UIViewPeer.h"

#include <memory>
#include <string>
#include <utility>

namespace {

const Class classObject = Class::define<HomeView, UIView>("HomeView");

/// Where things are, in points.
struct Measures {
    double sideMargin;
    double topMargin; ///< below the status bar
};

constexpr Measures phone{.sideMargin = 27, .topMargin = 29};
constexpr Measures pad{.sideMargin = 92, .topMargin = 62};

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
      settings_(make<HomeIcon>(systemText("Settings"), resource("AppIcon.png"), std::move(openSettings))) {
    wallpaper_->setContentMode(UIViewContentMode::ScaleAspectFill);
    wallpaper_->setClipsToBounds(true);
    addSubview(wallpaper_);
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
    const auto side = peer().traits().idiom == Idiom::Phone ? HomeIcon::phoneSide : HomeIcon::padSide;
    constexpr double nameHeight = 20;
    wallpaper_->setFrame(bounds());
    peer().place(*settings_, CGRectMake(measures.sideMargin, peer().safeAreaInsets().top + measures.topMargin,
                                        side, side + nameHeight));
}
