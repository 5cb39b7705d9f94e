#include "Preferences/PSSwitchTableCell.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<PSSwitchTableCell, PSControlTableCell> frameworkClass("PSSwitchTableCell");

} // namespace

PSSwitchTableCell::PSSwitchTableCell() = default;
