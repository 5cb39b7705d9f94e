#pragma once

#include "BundleFixture.h"
#include "ListRows.h"
#include "PaneEntry.h"
#include "Preferences/PSListController.h"

#include <string>
#include <vector>

/// A device that bundles and entries are installed on.
class EntryFixture : public BundleFixture {
protected:
    /// An entry's file, its dictionary as XML.
    void writeEntry(const std::string& name, const std::string& dictionary) const;
    /// One that leads to a bundle.
    /// \param more of the inside of `entry`, as XML
    void writeBundleEntry(const std::string& name, const std::string& bundle,
                          const std::string& more = {}) const;
    /// One that is a list of so many rows, labelled by their numbers from 0 on.
    void writeListEntry(const std::string& name, int rows) const;

    /// The entry of that name, which must be there.
    [[nodiscard]] static PaneEntry entry(const std::string& name);

    /// The labels of a page's rows, without the heads of groups.
    [[nodiscard]] static std::vector<std::string> labelsOf(const PSListController& page);
};
