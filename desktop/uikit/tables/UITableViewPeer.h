#pragma once

#include "UIKit/UITableView.h"
#include "scrolling/UIScrollViewPeer.h"
#include "tables/TableCaptionViews.h"
#include "tables/TableCells.h"
#include "tables/TableContent.h"
#include "tables/TableHeights.h"
#include "tables/TableLayout.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string_view>

/// The desktop's half of a table: makes cells for the rows near the screen, places them, and follows the
/// fingers on them. Made with the table.
class UITableViewPeer : public UIScrollViewPeer {
public:
    using Object = UITableView;

    /// \param content outlives the table or takes itself away; null for none
    void setContent(TableContent* content);

    /// Shows everything anew, with nothing selected.
    void reloadData();

    /// A cell made before that is no more in use; empty when there is none of that identifier.
    [[nodiscard]] Ref<UITableViewCell> dequeueReusableCell(std::string_view identifier) {
        return cells_.takeWaiting(identifier);
    }

    // At the last end heights are asked anew, and the rows slide to where they are now. When the content's
    // rows are others in number, a log line says so and all is shown anew.
    void beginUpdates() { ++updateDepth_; }

    void endUpdates();

    // Where things are, in the table's content.
    [[nodiscard]] const TableLayout& layout();
    /// \pre there is such a row or section
    [[nodiscard]] CGRect rectForRow(IndexPath row);
    [[nodiscard]] CGRect rectForHeader(std::size_t section);
    [[nodiscard]] CGRect rectForFooter(std::size_t section);
    /// The row whose rectangle is there; nothing beside the cards.
    [[nodiscard]] std::optional<IndexPath> rowAt(CGPoint point);

    /// Of rows near the screen; empty for others.
    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath row) const { return cells_.at(row); }

    [[nodiscard]] std::optional<IndexPath> rowOf(const UITableViewCell& cell) const {
        return cells_.rowOf(cell);
    }

    [[nodiscard]] const TableCells::Cells& cells() const { return cells_.shown(); }

    /// Of sections near the screen that have one; empty for others.
    [[nodiscard]] Ref<UIView> captionView(std::size_t section, TableCaptionViews::Edge edge) const {
        return captions_.view(section, edge);
    }

    /// Scrolls no further than it takes to see the whole row, or its top.
    void scrollRowToVisible(IndexPath row, bool animated);

    /// Whether the row that the cell shows can be selected.
    [[nodiscard]] bool isSelectable(const UITableViewCell& cell) const;

    [[nodiscard]] std::optional<IndexPath> selectedRow() const { return selected_; }

    /// The content hears nothing of either.
    void selectRow(IndexPath row);
    void deselectRow(bool animated);
    /// How much of the selection's look is gone, from 0 to 1; the row stays selected.
    void fadeSelection(double faded);

    // A finger on a cell; called by the cells.
    void cellTouched(const UITableViewCell& cell);
    void cellReleased(const UITableViewCell& cell);
    void cellTouchCancelled();

    // UIScrollViewPeer:
    void didScroll() override;

    // UIViewPeer:
    void layoutSubviews() override;
    void traitsDidChange() override;

private:
    using Rows = std::set<IndexPath>;

    [[nodiscard]] TableMetrics metrics() const;
    /// Asks for the heights when they may have changed.
    void refreshLayout();
    void askHeights();
    void takeLayout();
    void tile();
    /// The rows that need a cell when the screen's top is there.
    [[nodiscard]] Rows nearRows(double top) const;
    [[nodiscard]] std::set<std::size_t> nearSections() const;
    void makeCells(const Rows& rows);
    [[nodiscard]] Ref<UITableViewCell> makeCell(IndexPath row);
    /// Of the rows whose height follows from their cell. \returns whether any is another than was thought
    [[nodiscard]] bool measure(const Rows& rows);
    void placeAll();
    void place(IndexPath row, const UITableViewCell& cell) const;
    [[nodiscard]] CGRect cardRect(const TableLayout::Span& span) const;
    void setHighlighted(std::optional<IndexPath> row);

    /// Whether the content has as many rows as were laid out.
    [[nodiscard]] bool hasSameRows() const;
    void slideToNewHeights();
    /// Makes what comes near the screen, where it was before.
    void makeComingCells(const TableLayout& before);
    void cutOffWhatComesAndGoes(const TableLayout& before);

    TableContent* content_ = nullptr;
    TableHeights heights_;
    TableLayout layout_;
    TableLayout seen_; ///< during slides: with what comes and what goes, whose cards are cut out of it
    TableCells cells_;
    TableCaptionViews captions_;
    std::optional<IndexPath> selected_;
    std::optional<IndexPath> highlighted_;
    double laidOutWidth_ = -1;
    bool heightsAreOld_ = true;
    int updateDepth_ = 0;
    int slides_ = 0; ///< animations that still need cells that are no more near the screen
};
