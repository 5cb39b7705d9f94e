#include "screen/SystemBars.h"

#include "AnimationGroup.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <algorithm>

namespace {

constexpr auto windowLevel = 1000.0;
constexpr auto fadeDistance = 6.0; ///< within which an edge that comes near makes a bar fade

/// From 0 to 1 while the edge moves from there on by the distance of a fade.
double passedBy(double edge, double start) {
    return std::clamp((edge - start) / fadeDistance, 0.0, 1.0);
}

void show(UIView& bar, double alpha) {
    bar.setAlpha(alpha);
    bar.peer().setHidden(alpha <= 0);
}

} // namespace

SystemBars::SystemBars() : window_(make<UIWindow>()), bars_(make<BarsView>()) {
    window_->setWindowLevel(windowLevel);
    window_->setFrame(Screen::current().bounds());
    bars_->setFrame(window_->bounds());
    window_->addSubview(bars_);
    Screen::current().addWindow(window_);
}

SystemBars::~SystemBars() {
    Screen::current().removeWindow(*window_);
}

void SystemBars::refresh() {
    const auto wallpaper = wallpaperDepth_();
    auto dark = wallpaper;
    for (const auto* const presented : Screen::current().presentations().all())
        dark = std::max(dark, presented->blackDepth());
    AnimationGroup::runWithoutAnimation([&] { bars_->refresh(wallpaper, dark); });
}

SystemBars::BarsView::BarsView()
    : statusBar_(make<StatusBarView>()),
      whiteStatusBar_(make<StatusBarView>()),
      homeIndicator_(make<HomeIndicatorView>()) {
    setUserInteractionEnabled(false);
    setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    whiteStatusBar_->peer().setTraitOverride([](Traits& traits) { traits.style = UserInterfaceStyle::Dark; });
    whiteStatusBar_->peer().setHidden(true);
    addSubview(whiteStatusBar_);
    addSubview(statusBar_);
    addSubview(homeIndicator_);
}

void SystemBars::BarsView::refresh(double wallpaperDepth, double darkDepth) {
    statusBar_->refresh();
    whiteStatusBar_->refresh();
    // In dark appearance the application's bar is white itself, so that no edge makes a difference.
    const auto edge = peer().traits().style == UserInterfaceStyle::Light ? darkDepth : 0;
    const auto [top, bottom] = statusBar_->textExtent();
    show(*statusBar_, 1 - passedBy(edge, top - fadeDistance));
    show(*whiteStatusBar_, passedBy(edge, bottom));
    show(*homeIndicator_, 1 - passedBy(wallpaperDepth, 0));
}

void SystemBars::BarsView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto strip = CGRectMake(0, 0, size.width, Screen::current().safeAreaInsets().top);
    statusBar_->setFrame(strip);
    whiteStatusBar_->setFrame(strip);
    homeIndicator_->setFrame(HomeIndicatorView::frameIn(size, peer().traits().idiom == Idiom::Phone));
}
