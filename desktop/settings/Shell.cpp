#include "Shell.h"

#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "EntryList.h"
#include "HomeSwipeRecognizer.h"
#include "ObjectiveC/Weak.h"
#include "RectGeometry.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Screen.h"
#include "system/ApplicationSuspension.h"
#include "system/ApplicationTermination.h"
#include "time/MainQueueScheduler.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr double homeLevel = -1; ///< behind the application
constexpr std::string_view settingsIdentifier = "com.apple.Preferences";
constexpr double iconLevel = 1; ///< above the application

// A window that a finger draws up from the lower edge.
constexpr double shrinking = 1.25; ///< heights that it loses for each that the finger moves
constexpr double leastScale = 0.3; ///< that it shrinks to under the finger

using std::chrono::milliseconds;

AnimationGroup::Course zoom() {
    return {.duration = milliseconds(500),
            .delay = {},
            .curve = AnimationCurve::system(),
            .fromCurrentState = true};
}

AnimationGroup::Course fade(milliseconds delay, milliseconds duration) {
    return {
        .duration = duration, .delay = delay, .curve = AnimationCurve::linear(), .fromCurrentState = true};
}

/// On a course on which one is opaque as long as the other is not, so that nothing shines through both: the
/// lower one has come before the upper one goes, and goes after that has come. The icon's name is there only
/// while the window is about as small as the icon, so that it is never seen beside it.
struct Exchange {
    AnimationGroup::Course window;
    AnimationGroup::Course icon;
    AnimationGroup::Course name;
};

Exchange launching() {
    return {.window = fade({}, milliseconds(30)),
            .icon = fade(milliseconds(30), milliseconds(130)),
            .name = fade({}, milliseconds(30))};
}

Exchange leaving() {
    return {.window = fade(milliseconds(200), milliseconds(30)),
            .icon = fade(milliseconds(70), milliseconds(130)),
            .name = fade(milliseconds(300), milliseconds(150))};
}

CGPoint middleOf(const CGRect& rect) {
    return {CGRectGetMidX(rect), CGRectGetMidY(rect)};
}

} // namespace

Shell::Shell() : homeWindow_(make<UIWindow>()), home_(make<HomeView>([this] { launchSettings(); })) {
    auto& screen = Screen::current();
    homeWindow_->setWindowLevel(homeLevel);
    homeWindow_->setFrame(screen.bounds());
    home_->setFrame(homeWindow_->bounds());
    bars_.setApplication([this] { return shownSettings(); });
    home_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    homeWindow_->addSubview(home_);
    screen.addWindow(homeWindow_);
    makeIconWindow();
    Device::current().suspensions().setHandler([this] { goHome(); });
    Device::current().terminations().setHandler([this](const auto& request) { end(request.identifier); });
}

Shell::~Shell() {
    Device::current().suspensions().setHandler({});
    Device::current().terminations().setHandler({});
    endSettings();
    Screen::current().removeWindow(*homeWindow_);
    Screen::current().removeWindow(*iconWindow_);
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
    home_->setSettingsIconShown(false);
    showSettings(true);
    springBack();
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
    settingsWindow_->setUserInteractionEnabled(false);
    setCorners(Screen::current().cornerRadius());
    AnimationGroup::run(
        zoom(), [this] { shrinkToIcon(); },
        [this, window = Weak<UIWindow>(settingsWindow_)](bool finished) {
            const auto shrunk = window.strong();
            if (!finished || !shrunk)
                return;
            shrunk->peer().setHidden(true);
            iconWindow_->peer().setHidden(true);
            home_->setSettingsIconShown(true);
        });
    showSettings(false);
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
        setCorners(Screen::current().cornerRadius());
        shrinkToIcon();
        settingsWindow_->setAlpha(0);
        iconWindow_->setAlpha(1);
    });
}

void Shell::makeIconWindow() {
    auto& screen = Screen::current();
    iconWindow_ = make<UIWindow>();
    iconWindow_->setWindowLevel(iconLevel);
    iconWindow_->setFrame(screen.bounds());
    iconWindow_->setBackgroundColor(UIColor::grayColor()); // where the picture's own corners are round
    iconWindow_->setClipsToBounds(true);
    iconWindow_->layer().peer().continuousCorners = true;
    iconWindow_->layer().setCornerRadius(screen.cornerRadius());
    const auto picture = make<UIImageView>();
    picture->setImage(home_->settingsIcon());
    picture->setContentMode(UIViewContentMode::ScaleToFill);
    picture->setFrame(iconWindow_->bounds());
    picture->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    iconWindow_->addSubview(picture);
    iconWindow_->peer().setHidden(true);
    screen.addWindow(iconWindow_);
}

void Shell::showSettings(bool shown) {
    const auto courses = shown ? launching() : leaving();
    iconWindow_->peer().setHidden(false);
    AnimationGroup::run(courses.window, [this, shown] { settingsWindow_->setAlpha(shown ? 1 : 0); }, {});
    AnimationGroup::run(courses.icon, [this, shown] { iconWindow_->setAlpha(shown ? 0 : 1); }, {});
    AnimationGroup::run(courses.name, [this, shown] { home_->setSettingsNameShown(!shown); }, {});
}

void Shell::endSettings() {
    if (!settings_)
        return;
    settingsWindow_->setRootViewController(nullptr);
    Screen::current().removeWindow(*settingsWindow_);
    settingsWindow_ = nullptr;
    settings_.reset();
    iconWindow_->peer().setHidden(true);
    home_->setSettingsIconShown(true);
    AnimationGroup::run(fade({}, milliseconds(150)), [this] { home_->setSettingsNameShown(true); }, {});
}

std::optional<ShownShape> Shell::shownSettings() const {
    if (!settingsWindow_ || settingsWindow_->peer().isHidden())
        return std::nullopt;
    return settingsWindow_->layer().peer().shownShapeOnScreen();
}

void Shell::shrinkToIcon() {
    const auto icon = home_->settingsIconFrame();
    const auto screen = Screen::current().bounds();
    const auto from = middleOf(icon);
    const auto to = middleOf(screen);
    placeSettings({.a = icon.size.width / screen.size.width,
                   .d = icon.size.height / screen.size.height,
                   .tx = from.x - to.x,
                   .ty = from.y - to.y});
}

void Shell::fillScreen() {
    placeSettings({});
}

void Shell::placeSettings(const AffineTransform& transform) {
    settingsWindow_->peer().setTransform(transform);
    iconWindow_->peer().setTransform(transform);
}

void Shell::setCorners(double radius) {
    settingsWindow_->layer().setCornerRadius(radius);
}

/// The corners are those of the screen all the way; at its end they are the screen's own.
void Shell::springBack() {
    AnimationGroup::run(
        zoom(), [this] { fillScreen(); },
        [this, window = Weak<UIWindow>(settingsWindow_)](bool finished) {
            if (finished && window.strong())
                setCorners(0);
        });
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
    placeSettings(AffineTransform::translation(translation.x, lowerEdge - height * scale / 2)
                      .after(AffineTransform::scale(scale)));
    setCorners(Screen::current().cornerRadius());
}
