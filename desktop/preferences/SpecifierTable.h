#pragma once

#include "Preferences/PSListController.h"
#include "Preferences/PSTableCell.h"
#include "UIKit/UITableView.h"
#include "specifiers/SpecifierSections.h"
#include "tables/TableContent.h"
#include "tables/UITableViewPeer.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

/// Shows the rows of a page in a table. Made and owned by the page's peer.
class SpecifierTable final : public TableContent {
public:
    using Sections = std::vector<SpecifierSection>;

    /// What the table asks of its page.
    struct Page {
        std::function<Sections()> sections;            ///< asked once, when the rows are first needed
        std::function<double(IndexPath)> height;       ///< of a row, as the contract's page answers it
        std::function<void(DesktopSpecifier&)> select; ///< the user has tapped that row
    };

    explicit SpecifierTable(Page page);
    ~SpecifierTable() override;

    [[nodiscard]] const Ref<UITableView>& view() const { return view_; }

    [[nodiscard]] UITableViewPeer& table() const { return peerOf<UITableViewPeer>(*view_); }

    [[nodiscard]] const Sections& sections() const;

    /// Shows other rows, or the same ones with other properties.
    void show(Sections sections);

    /// Shows one row's or group's properties and value as they are now.
    void refresh(const PSSpecifier& specifier);

    /// The same for every row near the screen, whatever has changed their values.
    void refreshShown();

    /// Has the row's cell do what only it knows to do for a tap. \returns whether that was all
    bool tapCell(const PSSpecifier& specifier, PSListController& page);

    /// Leaves below the rows what the keyboard covers of the table, and scrolls a row that is edited out from
    /// behind it.
    void followKeyboard();

    // TableContent:
    [[nodiscard]] std::size_t sectionCount() const override { return sections().size(); }

    [[nodiscard]] std::size_t rowCount(std::size_t section) const override {
        return sections()[section].rows.size();
    }

    [[nodiscard]] std::optional<double> rowHeight(IndexPath row) override;
    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath row) override;
    [[nodiscard]] TableCaption header(std::size_t section) override;
    [[nodiscard]] TableCaption footer(std::size_t section) override;
    [[nodiscard]] bool isSelectable(IndexPath row) override;
    void didSelectRow(IndexPath row) override;

private:
    /// Views of classes that a row or group names, which serve it alone. Empty ones could not be made.
    struct OwnViews {
        Ref<PSTableCell> cell;
        std::optional<Ref<UIView>> header;
        std::optional<Ref<UIView>> footer;
    };

    struct ByAddress {
        bool operator()(const Ref<DesktopSpecifier>& left, const Ref<DesktopSpecifier>& right) const {
            return std::less<>()(left.get(), right.get());
        }
    };

    [[nodiscard]] DesktopSpecifier& at(IndexPath row) const;
    [[nodiscard]] std::optional<IndexPath> indexPathOf(const PSSpecifier& specifier) const;
    [[nodiscard]] Ref<PSTableCell> cellOf(DesktopSpecifier& specifier);
    static void giveTo(DesktopSpecifier& specifier, PSTableCell& cell);
    void setView(TableCaption& caption, const Ref<UIView>& view) const;
    void forgetViewsOfOthers();
    void refreshCell(const PSSpecifier& specifier);
    void showEditedRow();

    const Page page_;
    const Ref<UITableView> view_;
    mutable std::optional<Sections> sections_; ///< nothing until they are first needed
    std::map<Ref<DesktopSpecifier>, OwnViews, ByAddress> ownViews_;
    double keyboardInset_ = 0; ///< what of the content inset is for the keyboard
};
