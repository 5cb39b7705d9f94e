#pragma once

#include "PSControlTableCell.h"

/// A row with a switch. The property "negate" shows and keeps the opposite of the value.
class PSSwitchTableCell : public PSControlTableCell {
public:
    PSSwitchTableCell();

    using PSControlTableCell::initWithStyle;
    [[nodiscard]] bool initWithStyle(UITableViewCellStyle style, const std::string& reuseIdentifier,
                                     PSSpecifier& specifier) override;
};
