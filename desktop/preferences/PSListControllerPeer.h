#pragma once

#include "ListRow.h"
#include "Preferences/PSListController.h"
#include "SpecifierTable.h"
#include "controllers/UIViewControllerPeer.h"
#include "specifiers/DesktopSpecifier.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The desktop's half of a page of rows: keeps its specifiers and shows them in a table. Made with the page.
class PSListControllerPeer : public UIViewControllerPeer {
public:
    using Object = PSListController;

    using Specifiers = PSListController::Specifiers;

    ~PSListControllerPeer() override;

    [[nodiscard]] PSListController& page() const;

    /// The row that the page was opened from; empty for none.
    [[nodiscard]] const Ref<DesktopSpecifier>& specifier() const { return specifier_; }

    /// The row's label becomes the page's title.
    void setSpecifier(const Ref<DesktopSpecifier>& specifier);

    [[nodiscard]] const Specifiers& cachedSpecifiers() const { return cachedSpecifiers_; }

    void setCachedSpecifiers(Specifiers specifiers) { cachedSpecifiers_ = std::move(specifiers); }

    /// The title of the page's list; not heeded for a page that was opened from a row with a label.
    void setListTitle(const std::string& title);

    /// Forgets the kept rows, asks the page for its rows and shows them.
    void reloadSpecifiers();

    /// Shows one row's properties and value as they are now. A row that is not shown is ignored.
    void reloadSpecifier(const PSSpecifier& specifier);

    /// The row that stands there in the table; empty when there is none.
    [[nodiscard]] Ref<DesktopSpecifier> specifierAt(NSIndexPath path);

    /// Every row that the page has, hidden ones and the heads of groups too, in the order of its list.
    [[nodiscard]] std::vector<ListRow> rows();

    /// Scrolls until a row of `rows` is seen, as far as it can be. A row beyond the end is ignored.
    void scrollRowIntoView(std::size_t index);

    /// Writes a row's value as a control of the row would, and has its cell show it.
    void setValue(DesktopSpecifier& specifier, const std::optional<PropertyList>& value);

    /// Whether a row stays selected when it was tapped, as it does beside the page that it opened. Otherwise
    /// it fades at once, or on the way back from what it opened in the page's place.
    void setKeepsSelection(bool keeps) { keepsSelection_ = keeps; }

    /// The table; made with the view.
    [[nodiscard]] UITableViewPeer& table();

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void pageReturns(double progress) override;
    void keyboardDidChange() override;

private:
    /// Where a row of `rows` is in the table.
    struct Place {
        Ref<DesktopSpecifier> specifier;
        IndexPath path; ///< of a group, its section
    };

    [[nodiscard]] SpecifierTable& shownRows();
    [[nodiscard]] std::vector<Place> places();
    [[nodiscard]] ListRow rowAt(const Place& place);
    [[nodiscard]] double heightOf(IndexPath row);
    void select(DesktopSpecifier& specifier);
    [[nodiscard]] bool openDetail(DesktopSpecifier& specifier);
    /// Does what a tap on the row is for, besides leading somewhere.
    void act(DesktopSpecifier& specifier);
    void confirm(DesktopSpecifier& specifier);
    void fadeSelection();

    Ref<DesktopSpecifier> specifier_;
    Specifiers cachedSpecifiers_;
    std::unique_ptr<SpecifierTable> rows_; ///< null until the view is made
    bool keepsSelection_ = false;
};
