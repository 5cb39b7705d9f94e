#include "PSTableCell.h"

#include "ObjectiveC/Class.h"
#include "PSTableCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<PSTableCell, UITableViewCell>("PSTableCell");

} // namespace

PSTableCell::PSTableCell() : PSTableCell(std::make_unique<PSTableCellPeer>()) {}

PSTableCell::PSTableCell(std::unique_ptr<PSTableCellPeer> peer) : UITableViewCell(std::move(peer)) {}

bool PSTableCell::initWithStyle(UITableViewCellStyle style, const std::string& reuseIdentifier,
                                PSSpecifier& specifier) {
    if (!UITableViewCell::initWithStyle(style, reuseIdentifier))
        return false;
    peerOf<PSTableCellPeer>(*this).setSpecifier(dynamicCast<DesktopSpecifier>(retain(&specifier)));
    return true;
}

void PSTableCell::refreshCellContentsWithSpecifier(PSSpecifier& specifier) {
    auto& own = peerOf<PSTableCellPeer>(*this);
    own.setSpecifier(dynamicCast<DesktopSpecifier>(retain(&specifier)));
    own.refresh();
}

Ref<PSSpecifier> PSTableCell::specifier() const {
    return peerOf<PSTableCellPeer>(*this).specifier();
}
