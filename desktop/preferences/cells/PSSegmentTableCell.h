#pragma once

#include "Preferences/PSControlTableCell.h"

/// A row with a title for each of a few values, side by side, of which one is chosen. The row's label is not
/// drawn.
class PSSegmentTableCell final : public PSControlTableCell {
public:
    PSSegmentTableCell();
};
