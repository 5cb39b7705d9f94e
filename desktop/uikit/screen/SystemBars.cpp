#include "screen/SystemBars.h"

#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <algorithm>

namespace {

constexpr auto windowLevel = 1000.0;
constexpr auto fadeDistance = 6.0; ///< that the application moves up by until the home indicator is gone

/// What nothing is seen of.
ShownShape belowScreen() {
    const auto& size = Screen::current().bounds().size;
    return {.frame = CGRectMake(0, size.height, size.width, 0)};
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

std::optional<ShownShape> SystemBars::seenAllOver() {
    return ShownShape{.frame = Screen::current().bounds()};
}

void SystemBars::refresh() {
    const auto application = application_().value_or(belowScreen());
    auto light = application;
    for (const auto* const presented : Screen::current().presentations().all()) {
        const auto steppedBack = presented->steppedBack();
        if (steppedBack && steppedBack->frame.origin.y > light.frame.origin.y)
            light = *steppedBack;
    }
    AnimationGroup::runWithoutAnimation([&] { bars_->refresh(application, light); });
}

SystemBars::BarsView::BarsView()
    : strip_(make<UIView>()),
      cut_(make<UIView>()),
      statusBar_(make<StatusBarView>()),
      whiteStatusBar_(make<StatusBarView>()),
      homeIndicator_(make<HomeIndicatorView>()) {
    setUserInteractionEnabled(false);
    setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    whiteStatusBar_->peer().setTraitOverride([](Traits& traits) { traits.style = UserInterfaceStyle::Dark; });
    whiteStatusBar_->peer().setHidden(true);
    cut_->layer().peer().continuousCorners = true;
    cut_->layer().peer().roundBottom = false;
    addSubview(strip_);
    addSubview(homeIndicator_);
    // The application's covers the white one wherever its edge has not cut it off.
    strip_->addSubview(whiteStatusBar_);
    strip_->addSubview(cut_);
    cut_->addSubview(statusBar_);
}

void SystemBars::BarsView::refresh(const ShownShape& application, const ShownShape& light) {
    statusBar_->refresh();
    whiteStatusBar_->refresh();
    cutStatusBar(light);
    const auto left = std::clamp(application.frame.origin.y / fadeDistance, 0.0, 1.0);
    homeIndicator_->setAlpha(1 - left);
    homeIndicator_->peer().setHidden(left == 1);
}

void SystemBars::BarsView::cutStatusBar(const ShownShape& light) {
    const auto texts = statusBar_->textFrame();
    // In dark appearance the application's bar is white itself, so that no edge makes a difference.
    const auto isWhole = peer().traits().style == UserInterfaceStyle::Dark || light.covers(texts);
    const auto isSeen = isWhole || light.reaches(texts);
    for (const auto& view : {strip_, cut_})
        view->setClipsToBounds(isSeen && !isWhole);
    cut_->peer().setBounds(light.frame); // so that what is in it stays where it is on the screen
    cut_->setCenter({CGRectGetMidX(light.frame), CGRectGetMidY(light.frame)});
    cut_->layer().setCornerRadius(light.cornerRadius);
    statusBar_->peer().setHidden(!isSeen);
    whiteStatusBar_->peer().setHidden(isWhole);
}

void SystemBars::BarsView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto strip = CGRectMake(0, 0, size.width, Screen::current().safeAreaInsets().top);
    for (const auto& view : std::initializer_list<Ref<UIView>>{strip_, statusBar_, whiteStatusBar_})
        view->setFrame(strip);
    homeIndicator_->setFrame(HomeIndicatorView::frameIn(size, peer().traits().idiom == Idiom::Phone));
}
