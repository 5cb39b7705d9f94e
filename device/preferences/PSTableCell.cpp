#include "Preferences/PSTableCell.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

using InitialiserForRow = bool (PSTableCell::*)(UITableViewCellStyle, const std::optional<std::string>&,
                                                PSSpecifier&);

const FrameworkClassOf<PSTableCell, UITableViewCell>
    frameworkClass("PSTableCell", {initialiser<"-[PSTableCell initWithStyle:reuseIdentifier:specifier:]",
                                               static_cast<InitialiserForRow>(&PSTableCell::initWithStyle)>(),
                                   overridable<"-[PSTableCell refreshCellContentsWithSpecifier:]",
                                               &PSTableCell::refreshCellContentsWithSpecifier>()});

} // namespace

PSTableCell::PSTableCell() = default;

PSTableCell::PSTableCell(std::unique_ptr<UIViewPeer> peer) : UITableViewCell(std::move(peer)) {}

bool PSTableCell::initWithStyle(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier,
                                PSSpecifier& specifier) {
    return initialise<"-[PSTableCell initWithStyle:reuseIdentifier:specifier:]">(*this, style,
                                                                                 reuseIdentifier, specifier);
}

void PSTableCell::refreshCellContentsWithSpecifier(PSSpecifier& specifier) {
    sendToBase<"-[PSTableCell refreshCellContentsWithSpecifier:]", void>(*this, specifier);
}

Ref<PSSpecifier> PSTableCell::specifier() const {
    return send<"-[PSTableCell specifier]", Ref<PSSpecifier>>(*this);
}
