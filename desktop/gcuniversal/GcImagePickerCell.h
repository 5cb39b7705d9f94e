#pragma once

#include "Preferences/PSTableCell.h"

/// A row for a picture, which it shows at its right edge; a tap opens a sheet that takes a file. The picture
/// is kept as a file beside the preferences (`RowImage`), and the row has no value.
class GcImagePickerCell final : public PSTableCell {
public:
    GcImagePickerCell();
};
