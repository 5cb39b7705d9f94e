#pragma once

#include "Phone.h"
#include "UIKit/UITableView.h"
#include "tables/TableContent.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"
#include "views/UILabelPeer.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A table's content that a test writes down, and that writes down what the table asks and tells it.
class NotedContent final : public TableContent {
public:
    struct Row {
        std::string title;
        std::optional<double> height = 44;
    };

    struct Section {
        std::vector<Row> rows;
        TableCaption header;
        TableCaption footer;
    };

    explicit NotedContent(UITableView& table) : table_(table) {}

    /// So many rows of 44 points, titled by their numbers from 0 on.
    static Section sectionOf(std::size_t count);

    std::vector<Section> sections;
    std::set<IndexPath> unselectable;
    std::string reuseIdentifier = "Row";
    std::function<void(IndexPath, UITableViewCell&)> prepare; ///< of a cell that is about to show a row
    std::vector<IndexPath> selected;
    std::size_t cellsMade = 0;
    std::size_t heightsAsked = 0;

    // TableContent:
    [[nodiscard]] std::size_t sectionCount() const override { return sections.size(); }

    [[nodiscard]] std::size_t rowCount(std::size_t section) const override {
        return sections[section].rows.size();
    }

    [[nodiscard]] std::optional<double> rowHeight(IndexPath row) override;
    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath row) override;

    [[nodiscard]] TableCaption header(std::size_t section) override { return sections[section].header; }

    [[nodiscard]] TableCaption footer(std::size_t section) override { return sections[section].footer; }

    [[nodiscard]] bool isSelectable(IndexPath row) override { return !unselectable.contains(row); }

    void didSelectRow(IndexPath row) override { selected.push_back(row); }

private:
    UITableView& table_;
};

/// A table that fills a phone's screen, and a finger on it.
class TableFixture : public Phone {
protected:
    explicit TableFixture(const Screen::Options& options = {});
    ~TableFixture() override;

    /// Shows the content as it is now.
    void show();

    /// The middle of a row, on the screen.
    [[nodiscard]] CGPoint middleOf(IndexPath row);

    [[nodiscard]] UITableViewPeer& peer() const { return peerOf<UITableViewPeer>(*table_); }

    [[nodiscard]] UITableViewCell& cell(IndexPath row) const;
    /// Where a row is seen now, on its way.
    [[nodiscard]] CGRect shownFrame(IndexPath row) const;

    [[nodiscard]] std::string titleOf(IndexPath row) const {
        return *peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(cell(row)).textLabel()).text();
    }

    Ref<UITableView> table_ = make<UITableView>();
    NotedContent content_{*table_};
};
