#include "PSSwitchTableCell.h"

#include "ObjectiveC/Class.h"
#include "PSTableCellPeer.h"
#include "controls/UISwitchPeer.h"

#include <memory>

namespace {

const Class cellClass = Class::define<PSSwitchTableCell, PSControlTableCell>("PSSwitchTableCell");

/// Keeps the switch and the row's value the same.
class PSSwitchTableCellPeer final : public PSTableCellPeer {
public:
    [[nodiscard]] Ref<UIControl> makeSwitch();

    // PSTableCellPeer:
    void refresh() override;

private:
    [[nodiscard]] bool isNegated() const { return specifier()->boolForKey("negate", false); }

    void write() const;

    Ref<UISwitch> switch_;
};

Ref<UIControl> PSSwitchTableCellPeer::makeSwitch() {
    switch_ = make<UISwitch>();
    auto& peer = peerOf<UISwitchPeer>(*switch_);
    peer.sizeToFit();
    peer.addHandler(UIControlEvents::ValueChanged, [this] { write(); });
    return switch_;
}

void PSSwitchTableCellPeer::refresh() {
    PSTableCellPeer::refresh();
    if (!specifier() || !switch_)
        return;
    const auto value = specifier()->performGetter();
    auto& peer = peerOf<UISwitchPeer>(*switch_);
    peer.setOn((value && value->boolValue()) != isNegated(), false);
    peer.setEnabled(specifier()->isEnabled());
    Accessibility told;
    told.label = specifier()->label();
    peer.setAccessibility(told);
}

void PSSwitchTableCellPeer::write() const {
    if (specifier())
        specifier()->performSetter(peerOf<UISwitchPeer>(*switch_).isOn() != isNegated());
}

} // namespace

PSSwitchTableCell::PSSwitchTableCell() : PSControlTableCell(std::make_unique<PSSwitchTableCellPeer>()) {}

bool PSSwitchTableCell::initWithStyle(UITableViewCellStyle style, const std::string& reuseIdentifier,
                                      PSSpecifier& specifier) {
    if (!PSControlTableCell::initWithStyle(style, reuseIdentifier, specifier))
        return false;
    setControl(peerOf<PSSwitchTableCellPeer>(*this).makeSwitch());
    return true;
}
