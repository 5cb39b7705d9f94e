#include "ToldElements.h"

#include <algorithm>
#include <utility>

std::vector<ToldElements::News> ToldElements::update(const std::vector<AccessibilityElement>& elements) {
    std::vector<Told> now;
    now.reserve(elements.size());
    for (const auto& element : elements)
        now.push_back({.view = Weak<UIView>(element.view), .label = element.label, .value = element.value});
    const auto before = std::exchange(told_, std::move(now));
    const auto viewOf = [](const Told& told) { return told.view.strong(); };
    std::vector<News> news;
    if (!std::ranges::equal(before, elements, {}, viewOf, &AccessibilityElement::view))
        news.push_back({.change = Change::Elements, .view = nullptr});
    for (const auto& element : elements) {
        const auto known = std::ranges::find(before, element.view, viewOf);
        if (known == before.end())
            continue;
        if (known->label != element.label)
            news.push_back({.change = Change::Name, .view = element.view});
        if (known->value != element.value)
            news.push_back({.change = Change::Value, .view = element.view});
    }
    return news;
}
