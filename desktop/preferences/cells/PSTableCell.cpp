#include "Preferences/PSTableCell.h"

#include "ObjectiveC/Class.h"
#include "cells/PSTableCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<PSTableCell, UITableViewCell>("PSTableCell");

Ref<DesktopSpecifier> desktopHalf(PSSpecifier& specifier) {
    return dynamicCast<DesktopSpecifier>(retain(&specifier));
}

} // namespace

PSTableCell::PSTableCell() : PSTableCell(std::make_unique<PSTableCellPeer>()) {}

PSTableCell::PSTableCell(std::unique_ptr<UIViewPeer> peer) : UITableViewCell(std::move(peer)) {}

bool PSTableCell::initWithStyle(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier,
                                PSSpecifier& specifier) {
    if (!UITableViewCell::initWithStyle(style, reuseIdentifier))
        return false;
    peerOf<PSTableCellPeer>(*this).setSpecifier(desktopHalf(specifier));
    return true;
}

void PSTableCell::refreshCellContentsWithSpecifier(PSSpecifier& specifier) {
    auto& own = peerOf<PSTableCellPeer>(*this);
    own.setSpecifier(desktopHalf(specifier));
    own.refresh();
}

Ref<PSSpecifier> PSTableCell::specifier() const {
    return peerOf<PSTableCellPeer>(*this).specifier();
}
