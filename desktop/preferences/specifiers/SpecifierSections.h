#pragma once

#include "specifiers/DesktopSpecifier.h"

#include <vector>

/// A card of rows, and the head that opens it in the list.
struct SpecifierSection {
    Ref<DesktopSpecifier> group; ///< empty for rows that stand before any head
    std::vector<Ref<DesktopSpecifier>> rows;
};

/// Deals the rows of a list out to the groups that they follow.
[[nodiscard]] std::vector<SpecifierSection> sectionsOf(const std::vector<Ref<PSSpecifier>>& specifiers);
