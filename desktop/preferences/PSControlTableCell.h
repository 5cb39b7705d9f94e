#pragma once

#include "PSTableCell.h"
#include "UIKit/UIControl.h"

/// A row with a control, whose value is the row's.
class PSControlTableCell : public PSTableCell {
public:
    PSControlTableCell();

    /// The control; empty when the row has none.
    [[nodiscard]] Ref<UIControl> control() const;

    /// Shows `control` at the row's right edge, in place of the one there is; empty for none.
    void setControl(const Ref<UIControl>& control);

protected:
    explicit PSControlTableCell(std::unique_ptr<PSTableCellPeer> peer);

private:
    Ref<UIControl> control_;
};
