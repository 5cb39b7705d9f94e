#include "specifiers/SpecifierLocalizer.h"

#include <array>

namespace {

constexpr std::array shownTexts{
    "label", "title", "footerText", "headerDetailText", "placeholder", "staticTextMessage"};
constexpr std::array shownLists{"validTitles", "shortTitles"};
constexpr auto question = "confirmation";
constexpr std::array questionTexts{"prompt", "title", "okTitle", "cancelTitle"};

PropertyList* find(PropertyList::Dictionary& properties, std::string_view key) {
    const auto found = properties.find(key);
    return found != properties.end() ? &found->second : nullptr;
}

} // namespace

std::string SpecifierLocalizer::localized(const std::string& text) const {
    return text.empty() ? text : bundle_.localizedStringForKey(text, std::nullopt, table_);
}

void SpecifierLocalizer::localizeText(PropertyList& value) const {
    if (const auto* const text = value.getIf<std::string>())
        value = localized(*text);
}

void SpecifierLocalizer::localize(PropertyList::Dictionary& properties) const {
    for (const auto* const key : shownTexts) {
        if (auto* const value = find(properties, key))
            localizeText(*value);
    }
    for (const auto* const key : shownLists) {
        auto* const value = find(properties, key);
        if (auto* const titles = value != nullptr ? value->getIf<PropertyList::Array>() : nullptr) {
            for (auto& title : *titles)
                localizeText(title);
        }
    }
    auto* const value = find(properties, question);
    auto* const texts = value != nullptr ? value->getIf<PropertyList::Dictionary>() : nullptr;
    for (const auto* const key : questionTexts) {
        if (auto* const text = texts != nullptr ? find(*texts, key) : nullptr)
            localizeText(*text);
    }
}
