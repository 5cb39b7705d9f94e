#pragma once

#include "Preferences/PSTableCell.h"

#include <memory>

/// A row with a control at its right edge, whose value is the row's.
class PSControlTableCell : public PSTableCell {
public:
    PSControlTableCell();

protected:
    explicit PSControlTableCell(std::unique_ptr<UIViewPeer> peer);
};
