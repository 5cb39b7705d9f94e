#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Foundation/PropertyList.h"
#include "UIKit/UIView.h"

#include <optional>
#include <string>

/// What a page tells of one of its rows, shown or not. The head of a group is one too.
struct ListRow {
    std::string id;
    std::string label;
    std::string cell; ///< what the list calls the kind ("PSSwitchCell")
    std::string cellClass;
    std::string key;
    std::optional<PropertyList> value; ///< as the page reads it, of rows that name a key; of a choice,
                                       ///< whether it is the chosen one
    bool enabled = true;
    double height = 0; ///< points; 0 for a hidden row
    CGRect frame{};    ///< in the table's content; of a group, its header's
    Ref<UIView> view;  ///< the cell, or a group's header; empty while it is not near the screen
};
