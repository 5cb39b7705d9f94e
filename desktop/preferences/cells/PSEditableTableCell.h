#pragma once

#include "Preferences/PSControlTableCell.h"

/// A row with a text field after its label. The value is written when editing ends, if it is another one
/// then. "PSSecureEditTextCell" shows bullets.
class PSEditableTableCell final : public PSControlTableCell {
public:
    PSEditableTableCell();

    // UIResponder:
    bool becomeFirstResponder() override;
};
