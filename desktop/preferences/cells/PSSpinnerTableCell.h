#pragma once

#include "Preferences/PSTableCell.h"

/// A row that says that something is under way: its label, and a wheel at its right edge that stands still.
class PSSpinnerTableCell final : public PSTableCell {
public:
    PSSpinnerTableCell();
};
