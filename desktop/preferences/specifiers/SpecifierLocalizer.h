#pragma once

#include "Foundation/NSBundle.h"
#include "Foundation/PropertyList.h"

#include <string>
#include <string_view>

/// Puts the texts of a list's rows into the user's language, from the string table of the list's name.
class SpecifierLocalizer {
public:
    /// \param bundle outlives the localizer
    SpecifierLocalizer(const NSBundle& bundle, std::string_view table) : bundle_(bundle), table_(table) {}

    /// The text itself when the table does not have it.
    [[nodiscard]] std::string localized(const std::string& text) const;

    /// Those of a row's properties that are shown: its texts, lists of texts and the texts of its question.
    void localize(PropertyList::Dictionary& properties) const;

private:
    void localizeText(PropertyList& value) const;

    const NSBundle& bundle_;
    const std::string table_;
};
