#include "specifiers/SpecifierChoices.h"

#include <algorithm>
#include <cstddef>
#include <functional>

namespace {

PropertyList::Array listFor(DesktopSpecifier& specifier, const char* key, const char* source) {
    if (const auto* const listed = specifier.arrayForKey(key))
        return *listed;
    const auto answer = specifier.performDataSource(source);
    const auto* const answered = answer ? answer->getIf<PropertyList::Array>() : nullptr;
    return answered != nullptr ? *answered : PropertyList::Array();
}

std::vector<std::string> texts(const PropertyList::Array& titles, std::size_t count) {
    std::vector<std::string> found;
    found.reserve(count);
    for (std::size_t index = 0; index < count; ++index)
        found.push_back(textOfValue(titles[index]).value_or(""));
    return found;
}

} // namespace

SpecifierChoices SpecifierChoices::of(DesktopSpecifier& specifier) {
    SpecifierChoices choices;
    choices.values = listFor(specifier, "validValues", "valuesDataSource");
    const auto titles = listFor(specifier, "validTitles", "titlesDataSource");
    const auto shortTitles = listFor(specifier, "shortTitles", "shortTitlesDataSource");
    const auto count = std::min(choices.values.size(), titles.size());
    choices.values.erase(choices.values.begin() + static_cast<std::ptrdiff_t>(count), choices.values.end());
    choices.titles = texts(titles, count);
    choices.shortTitles = shortTitles.size() < count ? choices.titles : texts(shortTitles, count);
    return choices;
}

std::optional<std::size_t> SpecifierChoices::indexOf(const PropertyList& value) const {
    const auto found = std::ranges::find_if(
        values, [&value](const PropertyList& other) { return isSameValue(value, other); });
    return found != values.end() ? std::optional(static_cast<std::size_t>(found - values.begin()))
                                 : std::nullopt;
}

bool isSameValue(const PropertyList& left, const PropertyList& right) {
    if (left.isNumber() && right.isNumber())
        return std::equal_to()(left.doubleValue(), right.doubleValue());
    return left == right;
}

std::optional<std::string> textOfValue(const PropertyList& value) {
    if (const auto* const text = value.getIf<std::string>())
        return *text;
    return value.isNumber() ? std::optional(value.description()) : std::nullopt;
}
