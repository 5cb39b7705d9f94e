#pragma once

#include "Preferences/PSControlTableCell.h"

/// A row with a switch. The property "negate" shows and keeps the opposite of the value.
class PSSwitchTableCell : public PSControlTableCell {
public:
    PSSwitchTableCell();
};
