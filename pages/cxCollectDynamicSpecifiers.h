#pragma once

#include "Foundation/NSMutableDictionary.h"
#include "Preferences/PSListController.h"

#include <optional>

/// A page that hides rows by rule: a row is gone while the switch that it depends on is off, and slides in
/// and out when that is flipped. The row says so in its property "dynamicRule": three parts between ", ", of
/// which the first is the identifier of the controlling row on the same page; the others are not read. A base
/// of pages, which collect the rules when they load their rows.
class cxCollectDynamicSpecifiers : public PSListController {
public:
    /// Takes the rules of these rows, in place of all taken before. A controlling row has one dependent row,
    /// the last that names it: that is meant. Rules that have not exactly three parts count for nothing.
    void collectDynamicSpecifiersFromArray(const Specifiers& specifiers);

    /// Whether the row that the specifier's rule names reads as a number that is no. Without a specifier, a
    /// rule or such a row nothing is hidden, nor when the value is anything but a number.
    [[nodiscard]] bool shouldHideSpecifier(const Ref<PSSpecifier>& specifier);

    /// Whether there was a rule among the rows.
    [[nodiscard]] bool hasDynamicSpecifiers() const { return hasDynamicSpecifiers_; }

    void setHasDynamicSpecifiers(bool has) { hasDynamicSpecifiers_ = has; }

    /// The dependent rows, by the identifiers of those that control them. Empty before the first collection.
    [[nodiscard]] const Ref<NSMutableDictionary>& dynamicSpecifiers() const { return dynamicSpecifiers_; }

    void setDynamicSpecifiers(const Ref<NSMutableDictionary>& specifiers) { dynamicSpecifiers_ = specifiers; }

    // PSListController:
    /// Never what the row's list says: what suits the cell, or nothing for a hidden row, whose cell is then
    /// cut off.
    [[nodiscard]] double heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) override;
    void setPreferenceValue(const std::optional<PropertyList>& value, PSSpecifier& specifier) override;

private:
    [[nodiscard]] bool isDependent(const Ref<PSSpecifier>& specifier) const;
    [[nodiscard]] bool controlsAnother(const PSSpecifier& specifier) const;

    bool hasDynamicSpecifiers_ = false;
    Ref<NSMutableDictionary> dynamicSpecifiers_;
};
