#pragma once

#include "Preferences/PSSpecifier.h"
#include "UIKit/UITableViewCell.h"

#include <memory>
#include <optional>
#include <string>

/// Shows one row of a page. Made by the framework, by the name in the row's "cellClass" too; owned by the
/// page's table.
class PSTableCell : public UITableViewCell {
public:
    PSTableCell();

    using UITableViewCell::initWithStyle;
    /// Readies a new cell for a row.
    [[nodiscard]] virtual bool initWithStyle(UITableViewCellStyle style,
                                             const std::optional<std::string>& reuseIdentifier,
                                             PSSpecifier& specifier);

    /// Shows a row's properties and value as they are now. Called whenever the cell is about to be shown for
    /// it. An override calls its base.
    virtual void refreshCellContentsWithSpecifier(PSSpecifier& specifier);

    /// The row that the cell shows.
    [[nodiscard]] Ref<PSSpecifier> specifier() const;

protected:
    explicit PSTableCell(std::unique_ptr<UIViewPeer> peer);
};
