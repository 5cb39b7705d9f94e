#pragma once

#include "Preferences/PSListController.h"
#include "Preferences/PSTableCell.h"
#include "specifiers/DesktopSpecifier.h"
#include "tables/UITableViewCellPeer.h"

#include <optional>
#include <string>

/// The desktop's half of a page's cell: shows what its row's kind shows. Made with the cell.
class PSTableCellPeer : public UITableViewCellPeer {
public:
    using Object = PSTableCell;

    /// The style that suits the row.
    [[nodiscard]] static UITableViewCellStyle styleFor(const DesktopSpecifier& specifier);

    /// Empty until the cell has been made for a row.
    [[nodiscard]] const Ref<DesktopSpecifier>& specifier() const { return specifier_; }

    void setSpecifier(const Ref<DesktopSpecifier>& specifier) { specifier_ = specifier; }

    /// Shows the row's properties and value.
    virtual void refresh();

    /// The user has tapped the row. \returns whether the cell has done all that is to be done
    virtual bool tapped(PSListController& /*page*/) { return false; }

    // UITableViewCellPeer:
    /// What the cell itself prefers, if it says so.
    [[nodiscard]] double heightFor(double width) const override;

protected:
    /// What the row's value reads as: the title that the list gives it, else the value itself.
    [[nodiscard]] std::optional<std::string> valueText() const;

private:
    void showTitle();
    void showAccessory();

    Ref<DesktopSpecifier> specifier_;
};
