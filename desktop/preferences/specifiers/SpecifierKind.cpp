#include "specifiers/SpecifierKind.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

/// In the order of their numbers.
constexpr std::array<std::string_view, 16> names{
    "PSGroupCell",          "PSLinkCell",    "PSLinkListCell",     "PSListItemCell",
    "PSTitleValueCell",     "PSSliderCell",  "PSSwitchCell",       "PSStaticTextCell",
    "PSEditTextCell",       "PSSegmentCell", "PSGiantIconCell",    "PSGiantCell",
    "PSSecureEditTextCell", "PSButtonCell",  "PSEditTextViewCell", "PSSpinnerCell",
};

} // namespace

SpecifierKind specifierKindNamed(std::string_view name) {
    const auto* const found = std::ranges::find(names, name);
    return found != names.end() ? static_cast<SpecifierKind>(found - names.begin()) : SpecifierKind::Unknown;
}

std::string_view nameOf(SpecifierKind kind) {
    return kind != SpecifierKind::Unknown ? names.at(static_cast<std::size_t>(kind)) : std::string_view();
}
