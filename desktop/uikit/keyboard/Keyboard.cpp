#include "keyboard/Keyboard.h"

#include "AnimationGroup.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <chrono>
#include <utility>

namespace {

constexpr double windowLevel = 500; ///< in front of applications, behind the system's bars
constexpr std::chrono::duration<double> slideTime(AnimationCurve::systemDuration);

} // namespace

void Keyboard::setShown(bool shown) {
    const auto wasShown = std::exchange(isShown_, shown);
    if (shown && wasShown)
        serveAnotherText();
    if (wasShown == shown)
        return;
    if (!window_)
        makeWindow();
    if (shown) {
        view_->reset();
        window_->peer().setHidden(false);
    }
    const AnimationGroup::Course course{.duration = std::chrono::round<std::chrono::nanoseconds>(slideTime),
                                        .curve = AnimationCurve::system(),
                                        .fromCurrentState = true};
    const auto hidden = [window = Weak<UIWindow>(window_)](bool finished) {
        const auto slid = window.strong();
        if (finished && slid)
            slid->peer().setHidden(!Screen::current().keyboard().isShown());
    };
    AnimationGroup::run(course, [this] { slide(); }, hidden);
}

void Keyboard::serveAnotherText() {
    view_->reset();
    Screen::current().showEditedText();
}

void Keyboard::hideAtOnce() {
    isShown_ = false;
    if (!window_)
        return;
    AnimationGroup::runWithoutAnimation([this] { slide(); });
    window_->peer().setHidden(true);
}

void Keyboard::makeWindow() {
    auto& screen = Screen::current();
    const auto height = KeyboardLayout::height(screen.traits().idiom);
    window_ = make<UIWindow>();
    view_ = make<KeyboardView>();
    window_->setWindowLevel(windowLevel);
    window_->setFrame(screen.bounds());
    view_->setFrame(CGRectMake(0, screen.bounds().size.height, screen.bounds().size.width, height));
    view_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleTopMargin);
    window_->addSubview(view_);
    screen.addWindow(window_);
}

void Keyboard::slide() {
    auto& screen = Screen::current();
    auto frame = view_->frame();
    frame.origin.y = screen.bounds().size.height - (isShown_ ? frame.size.height : 0);
    view_->setFrame(frame);
    screen.setKeyboardHeight(isShown_ ? frame.size.height : 0);
}
