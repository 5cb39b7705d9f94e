#include "accessibility/AccessibilityElement.h"

#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <tuple>
#include <utility>

namespace {

constexpr std::string_view switchSelector = "isOn";

std::string labelOf(const UIViewPeer& peer, const Accessibility& accessibility) {
    return accessibility.label.empty() ? peer.shownText().value_or("") : accessibility.label;
}

/// A switch is one by what it answers, whoever made it.
std::string switchValue(UIView& view) {
    const auto answer = view.performSelector(switchSelector);
    const auto* const isOn = std::get_if<PropertyList>(&answer);
    return isOn != nullptr && isOn->boolValue() ? "1" : "0";
}

AccessibilityElement elementFor(UIView& view, const std::string& label, const Accessibility& accessibility,
                                bool isSwitch) {
    return {.view = retain(&view),
            .label = label,
            .value = isSwitch ? switchValue(view) : accessibility.value,
            .role = isSwitch ? AccessibilityRole::Switch : accessibility.role,
            .frame = view.peer().convertToScreen(view.bounds())};
}

/// An element without a name is called as what it is in.
void collect(UIView& view, const std::string& labelAround, std::vector<AccessibilityElement>& elements) {
    if (!isShown(view))
        return;
    const auto accessibility = view.peer().accessibility();
    const auto ownLabel = labelOf(view.peer(), accessibility);
    const auto& label = ownLabel.empty() ? labelAround : ownLabel;
    const auto isSwitch = view.respondsToSelector(switchSelector);
    if (accessibility.isElement || isSwitch) {
        elements.push_back(elementFor(view, label, accessibility, isSwitch));
        return;
    }
    for (const auto& subview : std::vector(view.peer().subviews()))
        collect(*subview, label, elements);
}

/// The line that the element is in, and its place there. Things whose middles are about level are in one
/// line.
std::tuple<long, double, double> readingPlace(const AccessibilityElement& element) {
    constexpr double lineHeight = 20; // points
    return {std::lround(CGRectGetMidY(element.frame) / lineHeight), element.frame.origin.x,
            element.frame.origin.y};
}

} // namespace

std::vector<AccessibilityElement> AccessibilityElement::allIn(UIView& root) {
    std::vector<AccessibilityElement> elements;
    collect(root, "", elements);
    std::ranges::sort(elements, {}, readingPlace);
    return elements;
}

UIView* viewInFront() {
    auto& screen = Screen::current();
    if (auto* const presented = screen.presentations().top())
        return &presented->shownView();
    constexpr auto applicationLevel = 0.0; // the system's bars are above
    const auto isInFront = [](const Ref<UIWindow>& window) {
        return window->windowLevel() <= applicationLevel && window->peer().isUserInteractionEnabled() &&
               isShown(*window);
    };
    const auto fromFront = screen.windows() | std::views::reverse;
    const auto found = std::ranges::find_if(fromFront, isInFront);
    return found != fromFront.end() ? found->get() : nullptr;
}

bool isShown(const UIView& view) {
    constexpr auto leastAlpha = 0.01;
    return !view.peer().isHidden() && view.layer().peer().number(LayerProperty::Opacity) >= leastAlpha;
}

void scrollIntoView(UIView& view) {
    for (auto* around = view.peer().superview(); around != nullptr; around = around->peer().superview()) {
        if (auto* const scroll = dynamic_cast<UIScrollView*>(around))
            peerOf<UIScrollViewPeer>(*scroll).scrollRectToVisible(
                view.peer().convertTo(*scroll, view.bounds()), false);
    }
}
