#include "accessibility/AccessibilityElement.h"

#include "RectGeometry.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "scrolling/UIScrollViewPeer.h"
#include "tables/UITableViewCellPeer.h"
#include "views/UIViewPeer.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <ranges>
#include <span>
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

/// The line that the element is in, and its place there. Things whose middles are about level are in one
/// line.
std::tuple<long, double, double> readingPlace(const AccessibilityElement& element) {
    constexpr double lineHeight = 20; // points
    const auto isRightToLeft = Screen::current().traits().rightToLeft;
    return {std::lround(CGRectGetMidY(element.frame) / lineHeight),
            isRightToLeft ? -CGRectGetMaxX(element.frame) : element.frame.origin.x, element.frame.origin.y};
}

bool isPlain(const AccessibilityElement& element) {
    return element.role == AccessibilityRole::StaticText || element.role == AccessibilityRole::Image;
}

std::string labelsOf(std::span<const AccessibilityElement> elements) {
    QStringList labels;
    for (const auto& element : elements)
        labels << QString::fromStdString(element.label);
    return labels.join(' ').toStdString();
}

/// One that has nothing to handle in it: all that it says is one element, which a tap on the row is for.
AccessibilityElement plainRow(UITableViewCell& cell, std::span<const AccessibilityElement> texts) {
    const auto& peer = peerOf<UITableViewCellPeer>(cell);
    const auto own = peer.accessibility();
    auto row = elementFor(cell, own.label, own, false);
    row.role = peer.isSelectable() ? AccessibilityRole::Button : AccessibilityRole::StaticText;
    if (peer.accessoryType() == UITableViewCellAccessoryType::Checkmark)
        row.value = std::string("1");
    const auto others = row.label.empty() ? texts.subspan(std::min<std::size_t>(1, texts.size())) : texts;
    if (row.label.empty() && !texts.empty())
        row.label = texts.front().label;
    if (!others.empty())
        row.value = labelsOf(others);
    return row;
}

/// In a row, what is written beside a control is its name or its value, and no element of its own.
void joinRow(UITableViewCell& cell, std::vector<AccessibilityElement>& elements) {
    std::erase_if(elements, [](const auto& element) { return isPlain(element) && element.label.empty(); });
    if (std::ranges::all_of(elements, isPlain)) {
        const auto row = plainRow(cell, elements);
        elements.clear();
        if (!row.label.empty())
            elements.push_back(row);
        return;
    }
    std::erase_if(elements, [all = std::vector(elements)](const AccessibilityElement& element) {
        return isPlain(element) && std::ranges::any_of(all, [&element](const auto& other) {
                   return !isPlain(other) && (other.label == element.label || other.value == element.label);
               });
    });
}

void collect(UIView& view, const std::string& labelAround, std::vector<AccessibilityElement>& elements);

void collectRow(UITableViewCell& cell, const std::string& label,
                std::vector<AccessibilityElement>& elements) {
    std::vector<AccessibilityElement> within;
    for (const auto& subview : std::vector(cell.peer().subviews()))
        collect(*subview, label, within);
    std::ranges::sort(within, {}, readingPlace);
    joinRow(cell, within);
    elements.insert(elements.end(), within.begin(), within.end());
}

/// An element without a name is called as what it is in.
void collect(UIView& view, const std::string& labelAround, std::vector<AccessibilityElement>& elements) {
    if (!isShown(view))
        return;
    const auto accessibility = view.peer().accessibility();
    if (accessibility.isLeftOut)
        return;
    const auto ownLabel = labelOf(view.peer(), accessibility);
    const auto& label = ownLabel.empty() ? labelAround : ownLabel;
    const auto isSwitch = view.respondsToSelector(switchSelector);
    if (accessibility.isElement || isSwitch) {
        elements.push_back(elementFor(view, label, accessibility, isSwitch));
        return;
    }
    if (auto* const cell = dynamic_cast<UITableViewCell*>(&view)) {
        collectRow(*cell, label, elements);
        return;
    }
    for (const auto& subview : std::vector(view.peer().subviews()))
        collect(*subview, label, elements);
}

} // namespace

bool AccessibilityElement::isStop() const {
    return !isPlain(*this) && role != AccessibilityRole::Header;
}

std::vector<AccessibilityElement> AccessibilityElement::allIn(UIView& root) {
    std::vector<AccessibilityElement> elements;
    collect(root, "", elements);
    std::ranges::sort(elements, {}, readingPlace);
    return elements;
}

AccessibilityElement AccessibilityElement::of(UIView& view) {
    std::string label;
    for (const auto* around = &view; around != nullptr && label.empty(); around = around->peer().superview())
        label = labelOf(around->peer(), around->peer().accessibility());
    return elementFor(view, label, view.peer().accessibility(), view.respondsToSelector(switchSelector));
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
