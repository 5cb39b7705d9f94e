#pragma once

#include "specifiers/DesktopSpecifier.h"

#include <optional>
#include <string>
#include <vector>

/// The values that a row may have and what they read as: its "validValues", "validTitles" and "shortTitles",
/// or what its target answers to the messages named by "valuesDataSource" and the like.
struct SpecifierChoices {
    PropertyList::Array values;
    std::vector<std::string> titles;      ///< as many as there are values
    std::vector<std::string> shortTitles; ///< likewise; the titles where the row has none of its own

    /// Of lists that differ in length, what is beyond the shorter one's end is no choice.
    [[nodiscard]] static SpecifierChoices of(DesktopSpecifier& specifier);

    /// Where a value stands among them; nothing when it is none of them.
    [[nodiscard]] std::optional<std::size_t> indexOf(const PropertyList& value) const;
};

/// Whether two values are the same, numbers of whatever type by their amount.
[[nodiscard]] bool isSameValue(const PropertyList& left, const PropertyList& right);

/// A value as a row shows it; nothing for what is neither a text nor a number.
[[nodiscard]] std::optional<std::string> textOfValue(const PropertyList& value);
