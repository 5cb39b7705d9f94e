#include "screen/Screen.h"

#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"
#include "texts/LanguageNames.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

namespace {

Screen* currentScreen = nullptr;

Traits traitsFor(const Screen::Options& options) {
    return {.style = options.style,
            .idiom = options.idiom,
            .elevated = false,
            .compactWidth = options.idiom == Idiom::Phone,
            .rightToLeft = isReadFromRightToLeft(Device::current().locale()),
            .displayScale = options.scale};
}

CGSize sizeFor(const Screen::Options& options) {
    if (options.size != CGSize())
        return options.size;
    return options.idiom == Idiom::Phone ? Screen::phoneSize : Screen::padSize;
}

} // namespace

Screen::Screen(const Options& options) : size_(sizeFor(options)), traits_(traitsFor(options)) {
    currentScreen = this;
}

Screen::~Screen() {
    firstResponder_.clear();
    windows_.clear();
    currentScreen = nullptr;
}

Screen& Screen::current() {
    if (currentScreen == nullptr) {
        std::fputs("There is no screen.\n", stderr);
        std::abort();
    }
    return *currentScreen;
}

void Screen::setStyle(UserInterfaceStyle style) {
    if (traits_.style == style)
        return;
    traits_.style = style;
    traitsChanged();
}

void Screen::setSize(CGSize size) {
    size_ = size;
    for (const auto& window : std::vector(windows_))
        window->setFrame(bounds());
    traitsChanged();
}

void Screen::setScale(double scale) {
    if (std::equal_to()(traits_.displayScale, scale))
        return;
    traits_.displayScale = scale;
    traitsChanged();
}

void Screen::setKeyboardHeight(double height) {
    keyboardHeight_ = height;
    for (auto* const presented : presentations_.all())
        presented->keyboardHeightDidChange();
    showEditedText();
}

void Screen::showEditedText() const {
    for (const auto& window : std::vector(windows_))
        window->peer().keyboardDidChange();
}

/// Once it is known who is the first responder in the end.
void Screen::scheduleKeyboard() {
    MainQueue::async([] {
        if (currentScreen != nullptr)
            currentScreen->keyboard_->setShown(currentScreen->firstResponder_.input() != nullptr);
    });
}

void Screen::traitsChanged() {
    for (const auto& window : std::vector(windows_))
        window->peer().traitsDidChange();
}

double Screen::cornerRadius() const {
    constexpr double phone = 47.3;
    constexpr double pad = 18;
    return traits_.idiom == Idiom::Phone ? phone : pad;
}

UIEdgeInsets Screen::safeAreaInsets() const {
    if (traits_.idiom == Idiom::Phone)
        return {.top = 47, .left = 0, .bottom = 34, .right = 0};
    return {.top = 24, .left = 0, .bottom = 20, .right = 0};
}

void Screen::addWindow(const Ref<UIWindow>& window) {
    const auto place = std::ranges::upper_bound(windows_, window->windowLevel(), {},
                                                [](const auto& other) { return other->windowLevel(); });
    windows_.insert(place, window);
    window->setFrame(bounds());
    window->peer().traitsDidChange();
    window->setOnScreen(true);
    scheduleLayout();
}

void Screen::removeWindow(const UIWindow& window) {
    const auto found = std::ranges::find(windows_, &window, &Ref<UIWindow>::get);
    if (found == windows_.end())
        return;
    const auto kept = retain(found->get());
    TouchDispatcher::cancelTouchesIn(*kept);
    if (std::erase(windows_, kept) > 0)
        kept->setOnScreen(false);
}

void Screen::layoutIfNeeded() {
    constexpr auto passes = 4; // a layout may ask for another one; more than a few would never end
    for (auto pass = 0; pass < passes && std::exchange(layoutIsNeeded_, false); ++pass) {
        for (const auto& window : std::vector(windows_))
            window->peer().layoutIfNeeded();
    }
}

void Screen::scheduleLayout() {
    layoutIsNeeded_ = true;
    if (std::exchange(layoutIsScheduled_, true))
        return;
    MainQueue::async([] {
        if (currentScreen == nullptr)
            return;
        currentScreen->layoutIfNeeded();
        currentScreen->layoutIsScheduled_ = false;
    });
}

void Screen::applicationHasEnded() {
    if (std::exchange(layoutIsScheduled_, false))
        scheduleLayout();
    keyboard_->hideAtOnce();
}

UIView* Screen::hitTest(CGPoint point) const {
    for (auto index = windows_.size(); index-- > 0;) {
        const auto& window = *windows_[index];
        const auto place = window.layer().peer().toSuperlayer().inverse()(point);
        if (auto* const hit = window.peer().hitTest(place))
            return hit;
    }
    return nullptr;
}
