#pragma once

#include "Preferences/PSSwitchTableCell.h"
#include "UIKit/UIButton.h"

#include <optional>
#include <string>

/// A row with a switch, and a small button whose tap explains the row in an alert. The texts are among the
/// row's properties. Made by the framework, by name.
class CXSwitchWithInfoCell final : public PSSwitchTableCell {
public:
    [[nodiscard]] const Ref<UIButton>& infoButton() const { return infoButton_; }

    /// Shows the explanation above the page that the cell is in, else above what the application shows.
    void infoButtonTapped();

    // UIView:
    void tintColorDidChange() override;

    // PSTableCell:
    using PSSwitchTableCell::initWithStyle;
    [[nodiscard]] bool initWithStyle(UITableViewCellStyle style,
                                     const std::optional<std::string>& reuseIdentifier,
                                     PSSpecifier& specifier) override;
    void refreshCellContentsWithSpecifier(PSSpecifier& specifier) override;

private:
    void setupInfoButton();
    void tintInfoButton();
    [[nodiscard]] std::string message() const;

    Ref<UIButton> infoButton_;
};
