#pragma once

#include "Preferences/PSControlTableCell.h"
#include "UIKit/UIControl.h"
#include "cells/PSTableCellPeer.h"

/// The desktop's half of a row with a control. Made with the cell.
class PSControlTableCellPeer : public PSTableCellPeer {
public:
    using Object = PSControlTableCell;

    /// Empty when the row has none.
    [[nodiscard]] const Ref<UIControl>& control() const { return control_; }

    /// Shows `control` at the row's right edge, in place of the one there is; empty for none.
    void setControl(const Ref<UIControl>& control);

private:
    Ref<UIControl> control_;
};
