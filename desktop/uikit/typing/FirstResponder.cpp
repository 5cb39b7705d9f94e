#include "typing/FirstResponder.h"

#include "Device.h"
#include "typing/TextInput.h"
#include "views/UIViewPeer.h"

#include <utility>

namespace {

constexpr std::chrono::nanoseconds halfBlink = std::chrono::milliseconds(500);

std::chrono::nanoseconds now() {
    return Device::current().clock().uptime();
}

} // namespace

TextInput* FirstResponder::input() const {
    return view_.strong() ? input_ : nullptr;
}

void FirstResponder::set(TextInput& input) {
    auto* const before = this->input();
    if (before == &input)
        return;
    const auto kept = retain(&input.inputView());
    view_ = Weak<UIView>(kept);
    input_ = &input;
    noteEdit();
    if (before != nullptr)
        before->firstResponderDidChange(false);
    if (input_ == &input)
        input.firstResponderDidChange(true);
    changed_();
}

void FirstResponder::remove(const TextInput& input) {
    if (input_ == &input)
        clear();
}

void FirstResponder::removeIn(const UIView& view) {
    const auto current = view_.strong();
    if (current && current->peer().isDescendantOf(view))
        clear();
}

void FirstResponder::clear() {
    auto* const before = input();
    view_ = {};
    if (std::exchange(input_, nullptr) == nullptr)
        return;
    if (before != nullptr)
        before->firstResponderDidChange(false);
    changed_();
}

void FirstResponder::noteEdit() {
    litSince_ = now();
}

void FirstResponder::followTime() const {
    if (auto* const shown = input())
        shown->setCaretLit((now() - litSince_) / halfBlink % 2 == 0);
}

std::optional<std::chrono::nanoseconds> FirstResponder::untilBlink() const {
    if (input() == nullptr)
        return std::nullopt;
    return halfBlink - (now() - litSince_) % halfBlink;
}
