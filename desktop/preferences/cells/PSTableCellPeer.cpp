#include "cells/PSTableCellPeer.h"

#include "DesktopColor.h"
#include "cells/PSHeaderFooterView.h"
#include "specifiers/RadioGroup.h"
#include "specifiers/SpecifierChoices.h"
#include "views/UILabelPeer.h"

namespace {

bool isLink(SpecifierKind kind) {
    return kind == SpecifierKind::Link || kind == SpecifierKind::LinkList;
}

bool showsValue(const DesktopSpecifier& specifier) {
    if (specifier.kind() == SpecifierKind::TitleValue)
        return true;
    return isLink(specifier.kind()) &&
           !(specifier.textForKey("key").empty() && specifier.textForKey("get").empty());
}

SystemColor titleColor(const DesktopSpecifier& specifier) {
    if (!specifier.isEnabled())
        return SystemColor::TertiaryLabel;
    if (specifier.kind() != SpecifierKind::Button)
        return SystemColor::Label;
    return specifier.boolForKey("isDestructive", false) ? SystemColor::Red : SystemColor::Blue;
}

} // namespace

UITableViewCellStyle PSTableCellPeer::styleFor(const DesktopSpecifier& specifier) {
    const auto kind = specifier.kind();
    return isLink(kind) || kind == SpecifierKind::TitleValue ? UITableViewCellStyle::Value1
                                                             : UITableViewCellStyle::Default;
}

void PSTableCellPeer::refresh() {
    if (!specifier_)
        return;
    showTitle();
    imageView().setImage(specifier_->icon());
    detailTextLabel().setText(showsValue(*specifier_) ? valueText() : std::nullopt);
    setDetailHasPriority(specifier_->boolForKey("prioritizeValueTextDisplay", false));
    showAccessory();
    setNeedsLayout();
}

void PSTableCellPeer::showTitle() {
    textLabel().setText(specifier_->label());
    textLabel().setTextColor(DesktopColor::system(titleColor(*specifier_)));
    peerOf<UILabelPeer>(textLabel())
        .setNumberOfLines(specifier_->kind() == SpecifierKind::StaticText ? 0 : 1);
}

void PSTableCellPeer::showAccessory() {
    const auto chevron =
        isLink(specifier_->kind()) && !specifier_->boolForKey("hidesDisclosureIndicator", false);
    if (chevron)
        setAccessoryType(UITableViewCellAccessoryType::DisclosureIndicator);
    else
        setAccessoryType(isChosen(*specifier_) ? UITableViewCellAccessoryType::Checkmark
                                               : UITableViewCellAccessoryType::None);
}

double PSTableCellPeer::heightFor(double width) const {
    const auto preferred = PSHeaderFooterView::preferredHeight(cell(), width);
    return preferred ? *preferred : UITableViewCellPeer::heightFor(width);
}

std::optional<std::string> PSTableCellPeer::valueText() const {
    const auto value = specifier_->performGetter();
    if (!value)
        return std::nullopt;
    const auto choices = SpecifierChoices::of(*specifier_);
    const auto place = choices.indexOf(*value);
    return place ? choices.shortTitles[*place] : textOfValue(*value);
}
