#include "PSControlTableCell.h"

#include "ObjectiveC/Class.h"
#include "PSTableCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<PSControlTableCell, PSTableCell>("PSControlTableCell");

} // namespace

PSControlTableCell::PSControlTableCell() = default;

PSControlTableCell::PSControlTableCell(std::unique_ptr<PSTableCellPeer> peer)
    : PSTableCell(std::move(peer)) {}

Ref<UIControl> PSControlTableCell::control() const {
    return control_;
}

void PSControlTableCell::setControl(const Ref<UIControl>& control) {
    control_ = control;
    setAccessoryView(control);
}
