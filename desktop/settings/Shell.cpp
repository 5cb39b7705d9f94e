#include "Shell.h"

#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "EntryList.h"
#include "HomeSwipeRecognizer.h"
#include "ObjectiveC/Weak.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/DesktopApplication.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr double homeLevel = -1; ///< behind the application
constexpr std::string_view settingsIdentifier = "com.apple.Preferences";
constexpr double screenCorner = 47; ///< of a window on its way to the screen's edges or back, in points

// A window that a finger draws up from the lower edge.
constexpr double shrinking = 1.25;    ///< heights that it loses for each that the finger moves
constexpr double leastScale = 0.3;    ///< that it shrinks to under the finger
constexpr double cornersAppear = 0.1; ///< the part of the way on which its corners become round

using std::chrono::milliseconds;

AnimationGroup::Course zoom() {
    return {.duration = milliseconds(500),
            .delay = {},
            .curve = AnimationCurve::system(),
            .fromCurrentState = true};
}

/// Short, so that the icon and the application are seldom seen through each other.
AnimationGroup::Course fade(milliseconds delay) {
    return {.duration = milliseconds(120),
            .delay = delay,
            .curve = AnimationCurve::linear(),
            .fromCurrentState = true};
}

constexpr milliseconds untilSmall{160}; ///< from when on a window on its way home fades

} // namespace

Shell::Shell() : homeWindow_(make<UIWindow>()), home_(make<HomeView>([this] { launchSettings(); })) {
    auto& screen = Screen::current();
    homeWindow_->setWindowLevel(homeLevel);
    homeWindow_->setFrame(screen.bounds());
    home_->setFrame(homeWindow_->bounds());
    bars_.setBehind(SystemBars::Behind::Wallpaper, false);
    home_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    homeWindow_->addSubview(home_);
    screen.addWindow(homeWindow_);
    DesktopApplication::shared().setSuspendHandler([this] { goHome(); });
    Device::current().terminations().setHandler([this](const auto& request) { end(request.identifier); });
}

Shell::~Shell() {
    DesktopApplication::shared().setSuspendHandler({});
    Device::current().terminations().setHandler({});
    endSettings();
    Screen::current().removeWindow(*homeWindow_);
    // What still waits may be of the code that goes with the loader.
    Device::current().mainQueue().forgetAll();
}

void Shell::launchSettings() {
    if (!isHome_)
        return;
    isHome_ = false;
    if (!settings_)
        startSettings();
    settingsWindow_->peer().setHidden(false);
    settingsWindow_->setUserInteractionEnabled(true);
    springBack();
    AnimationGroup::run(fade({}), [this] { settingsWindow_->setAlpha(1); }, {});
    bars_.setBehind(SystemBars::Behind::Application, true);
}

std::expected<void, std::string> Shell::openEntry(std::string_view nameOrLabel) {
    const auto entry = EntryList::find(nameOrLabel);
    if (!entry)
        return std::unexpected("There is no entry called “" + std::string(nameOrLabel) + "”.");
    const bool wasHome = isHome_;
    launchSettings();
    settings_->open(*entry, !wasHome);
    return {};
}

void Shell::goHome() {
    if (isHome_)
        return;
    isHome_ = true;
    Screen::current().firstResponder().clear();
    Screen::current().presentations().dismissTransient();
    TouchDispatcher::cancelTouchesIn(*settingsWindow_);
    settingsWindow_->setUserInteractionEnabled(false);
    bars_.setBehind(SystemBars::Behind::Wallpaper, true);
    AnimationGroup::run(
        zoom(), [this] { shrinkToIcon(); },
        [window = Weak<UIWindow>(settingsWindow_)](bool finished) {
            const auto shrunk = window.strong();
            if (finished && shrunk)
                shrunk->peer().setHidden(true);
        });
    AnimationGroup::run(fade(untilSmall), [this] { settingsWindow_->setAlpha(0); }, {});
}

void Shell::goBack() {
    if (isHome_)
        return;
    auto& pages = peerOf<UINavigationControllerPeer>(*settings_->pages());
    if (pages.stack().size() > 1)
        pages.pop(true);
    else
        goHome();
}

void Shell::terminateSettings() {
    isHome_ = true;
    endSettings();
    // All that still waits is the application's, and may be of the code that goes now.
    Device::current().mainQueue().forgetAll();
    Screen::current().applicationHasEnded();
    loader_.unloadBundles();
    bars_.setBehind(SystemBars::Behind::Wallpaper, false);
}

void Shell::relaunch() {
    terminateSettings();
    launchSettings();
}

void Shell::end(std::string_view identifier) {
    // Later, since who asks for its own end is still at work.
    if (identifier == settingsIdentifier)
        MainQueue::async([this] { terminateSettings(); });
}

void Shell::startSettings() {
    auto& screen = Screen::current();
    screen.layoutIfNeeded(); // so that the icon that it grows from has its place
    settings_ = std::make_unique<SettingsApplication>(loader_);
    settingsWindow_ = make<UIWindow>();
    settingsWindow_->setFrame(screen.bounds());
    settingsWindow_->setRootViewController(settings_->rootViewController());
    settingsWindow_->setClipsToBounds(true);
    settingsWindow_->layer().peer().continuousCorners = true;
    settingsWindow_->peer().addGestureRecognizer(make<HomeSwipeRecognizer>(
        HomeSwipeRecognizer::Follower{.drawn = [this](CGPoint translation) { followFinger(translation); },
                                      .released = [this](bool goesHome) { fingerGone(goesHome); }}));
    screen.addWindow(settingsWindow_);
    AnimationGroup::runWithoutAnimation([this] {
        shrinkToIcon();
        settingsWindow_->setAlpha(0);
    });
}

void Shell::endSettings() {
    if (!settings_)
        return;
    settingsWindow_->setRootViewController(nullptr);
    Screen::current().removeWindow(*settingsWindow_);
    settingsWindow_ = nullptr;
    settings_.reset();
}

void Shell::shrinkToIcon() {
    const auto icon = home_->settingsIconFrame();
    const auto screen = Screen::current().bounds();
    const auto factor = icon.size.width / screen.size.width;
    const auto middle = [](const CGRect& rect) {
        return CGPoint{rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
    };
    const auto from = middle(icon);
    const auto to = middle(screen);
    settingsWindow_->peer().setTransform(
        AffineTransform::translation(from.x - to.x, from.y - to.y).after(AffineTransform::scale(factor)));
    settingsWindow_->layer().setCornerRadius(screenCorner);
}

void Shell::fillScreen() {
    settingsWindow_->peer().setTransform({});
    settingsWindow_->layer().setCornerRadius(0);
}

void Shell::springBack() {
    AnimationGroup::run(zoom(), [this] { fillScreen(); }, {});
}

void Shell::fingerGone(bool goesHome) {
    if (goesHome)
        goHome();
    else if (!isHome_)
        springBack();
}

void Shell::followFinger(CGPoint translation) {
    const auto height = Screen::current().bounds().size.height;
    const auto way = std::max(0.0, -translation.y / height);
    const auto scale = std::max(leastScale, 1 - shrinking * way);
    const auto lowerEdge = height * (0.5 - way);
    settingsWindow_->peer().setTransform(
        AffineTransform::translation(translation.x, lowerEdge - height * scale / 2)
            .after(AffineTransform::scale(scale)));
    settingsWindow_->layer().setCornerRadius(screenCorner * std::min(1.0, way / cornersAppear));
}
