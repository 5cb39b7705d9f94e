#include "Preferences/PSControlTableCell.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<PSControlTableCell, PSTableCell> frameworkClass("PSControlTableCell");

} // namespace

PSControlTableCell::PSControlTableCell() = default;

PSControlTableCell::PSControlTableCell(std::unique_ptr<UIViewPeer> peer) : PSTableCell(std::move(peer)) {}
