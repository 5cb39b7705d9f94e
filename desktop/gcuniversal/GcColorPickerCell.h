#pragma once

#include "Preferences/PSTableCell.h"

/// A row for a colour, which it shows at its right edge; a tap opens a sheet of colours. The value is a text
/// of hex digits, red, green, blue and opacity by two each.
class GcColorPickerCell final : public PSTableCell {
public:
    GcColorPickerCell();
};
