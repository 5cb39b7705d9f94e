#pragma once

#include "Preferences/PSSpecifier.h"

/// What a view class named by a group's "headerCellClass" or "footerCellClass" answers besides being a view.
class PSHeaderFooterView {
public:
    virtual ~PSHeaderFooterView() = default;

    /// Readies a new view for the group; in place of the view's other initialisers.
    [[nodiscard]] virtual bool initWithSpecifier(PSSpecifier& specifier) = 0;

    /// In points.
    [[nodiscard]] virtual double preferredHeightForWidth(double width) = 0;
};
