#include "screen/SystemBars.h"

#include "ObjectiveC/Weak.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr auto windowLevel = 1000.0;

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
    const auto presented = Screen::current().presentations().all();
    const auto isOnBlack = std::ranges::any_of(presented, &Presented::blackensStatusBar);
    if (std::exchange(isOnBlack_, isOnBlack) != isOnBlack)
        statusBar().peer().setTraitOverride([isOnBlack](Traits& traits) {
            if (isOnBlack)
                traits.style = UserInterfaceStyle::Dark;
        });
    bars_->refresh();
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

void SystemBars::BarsView::refresh() {
    statusBar_->refresh();
    whiteStatusBar_->refresh();
}

void SystemBars::BarsView::setBehind(Behind behind, const AnimationGroup::Course& course) {
    behind_ = behind;
    const auto isApplication = behind == Behind::Application;
    // The white bar stays beneath the other one while that fades, so that neither is ever seen through.
    whiteStatusBar_->peer().setHidden(false);
    AnimationGroup::run(
        course, [this, isApplication] { showApplicationBars(isApplication); },
        [self = Weak<BarsView>(this)](bool /*finished*/) {
            if (const auto bars = self.strong())
                bars->whiteStatusBar_->peer().setHidden(bars->behind_ == Behind::Application);
        });
}

void SystemBars::BarsView::showApplicationBars(bool shown) {
    statusBar_->setAlpha(shown ? 1 : 0);
    homeIndicator_->setAlpha(shown ? 1 : 0);
}

void SystemBars::BarsView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto strip = CGRectMake(0, 0, size.width, Screen::current().safeAreaInsets().top);
    statusBar_->setFrame(strip);
    whiteStatusBar_->setFrame(strip);
    homeIndicator_->setFrame(HomeIndicatorView::frameIn(size, peer().traits().idiom == Idiom::Phone));
}
