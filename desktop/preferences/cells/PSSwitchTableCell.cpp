#include "Preferences/PSSwitchTableCell.h"

#include "ObjectiveC/Class.h"
#include "cells/PSControlTableCellPeer.h"
#include "cells/RowControl.h"
#include "controls/UISwitchPeer.h"

#include <memory>

namespace {

const Class cellClass = Class::define<PSSwitchTableCell, PSControlTableCell>("PSSwitchTableCell");

/// Keeps the switch and the row's value the same.
class PSSwitchTableCellPeer final : public PSControlTableCellPeer {
public:
    // PSTableCellPeer:
    void refresh() override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    [[nodiscard]] bool isNegated() const { return specifier()->boolForKey("negate", false); }

    void write() const;

    [[nodiscard]] UISwitchPeer& switchPeer() const {
        return peerOf<UISwitchPeer>(dynamic_cast<UISwitch&>(*control()));
    }
};

void PSSwitchTableCellPeer::viewMade() {
    PSControlTableCellPeer::viewMade();
    setControl(make<UISwitch>());
    switchPeer().sizeToFit();
    switchPeer().addHandler(UIControlEvents::ValueChanged, [this] { write(); });
}

void PSSwitchTableCellPeer::refresh() {
    PSControlTableCellPeer::refresh();
    if (!specifier())
        return;
    const auto value = specifier()->performGetter();
    auto& peer = switchPeer();
    peer.setOn((value && value->boolValue()) != isNegated(), false);
    adoptRow(*control(), *specifier());
}

void PSSwitchTableCellPeer::write() const {
    if (specifier())
        specifier()->performSetter(switchPeer().isOn() != isNegated());
}

} // namespace

PSSwitchTableCell::PSSwitchTableCell() : PSControlTableCell(std::make_unique<PSSwitchTableCellPeer>()) {}
