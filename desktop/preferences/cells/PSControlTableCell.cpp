#include "Preferences/PSControlTableCell.h"

#include "ObjectiveC/Class.h"
#include "cells/PSControlTableCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<PSControlTableCell, PSTableCell>("PSControlTableCell");

} // namespace

PSControlTableCell::PSControlTableCell() : PSControlTableCell(std::make_unique<PSControlTableCellPeer>()) {}

PSControlTableCell::PSControlTableCell(std::unique_ptr<UIViewPeer> peer) : PSTableCell(std::move(peer)) {}
