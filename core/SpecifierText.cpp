#include "SpecifierText.h"

std::optional<std::string> textOf(const PSSpecifier& specifier, std::string_view key) {
    const auto value = specifier.propertyForKey(key);
    const auto* const text = value ? value->getIf<std::string>() : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

std::optional<std::string> textOf(const Ref<PSSpecifier>& specifier, std::string_view key) {
    return specifier ? textOf(*specifier, key) : std::nullopt;
}
