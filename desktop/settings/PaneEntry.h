#pragma once

#include "Foundation/PropertyList.h"

#include <string>

/// One row of Settings that leads to a pane, as a file of the entry folder describes it: by a bundle that is
/// loaded, or by a plain list of rows. Made by EntryList.
struct PaneEntry {
    std::string name; ///< the file's, without ".plist"
    std::string label;
    std::string
        folder; ///< where the icon, and a plain list's texts, are: the bundle's folder, or the entry's own
    std::string icon;   ///< a file in `folder`; empty when there is none
    std::string bundle; ///< the name of the bundle; empty for a plain list
    std::string detail; ///< the class of the bundle's that makes the page; empty for the principal class
    PropertyList::Dictionary row; ///< its properties
};
