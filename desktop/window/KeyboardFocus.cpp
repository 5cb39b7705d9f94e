#include "KeyboardFocus.h"

#include <algorithm>
#include <functional>

std::vector<AccessibilityElement> KeyboardFocus::elements() {
    auto* const view = viewInFront();
    return view != nullptr ? AccessibilityElement::allIn(*view) : std::vector<AccessibilityElement>();
}

std::optional<AccessibilityElement> KeyboardFocus::element() const {
    const auto all = elements();
    const auto found = std::ranges::find(all, view_.strong(), &AccessibilityElement::view);
    return found != all.end() ? std::optional(*found) : std::nullopt;
}

void KeyboardFocus::move(bool forward) {
    auto all = elements();
    std::erase_if(all, std::not_fn(&AccessibilityElement::isStop));
    if (all.empty())
        return;
    const auto found = std::ranges::find(all, view_.strong(), &AccessibilityElement::view);
    const auto last = all.size() - 1;
    const auto index = static_cast<std::size_t>(found - all.begin());
    const auto isSomewhere = found != all.end();
    const auto after = isSomewhere && index < last ? index + 1 : 0;
    const auto before = isSomewhere && index > 0 ? index - 1 : last;
    const auto next = forward ? after : before;
    view_ = Weak<UIView>(all[next].view);
    scrollIntoView(*all[next].view);
}
