#include "tables/TableHeights.h"

#include "tables/TableCaptionViews.h"
#include "views/UIViewPeer.h"

#include <utility>

namespace {

using Edge = TableCaptionViews::Edge;

double headerHeight(const TableCaption& caption, bool first, const TableMetrics& metrics) {
    if (caption.height)
        return *caption.height;
    if (caption.view)
        return caption.view->peer().sizeThatFits({metrics.width(), 0}).height;
    if (caption.text.empty())
        return metrics.emptyHeaderHeight(first);
    return metrics.headerHeight(TableCaptionViews::textHeight(caption, Edge::Header, metrics), first);
}

double footerHeight(const TableCaption& caption, const TableMetrics& metrics) {
    if (caption.height)
        return *caption.height;
    if (caption.view)
        return caption.view->peer().sizeThatFits({metrics.width(), 0}).height;
    if (caption.text.empty())
        return metrics.emptyFooterHeight();
    return metrics.footerHeight(TableCaptionViews::textHeight(caption, Edge::Footer, metrics));
}

} // namespace

void TableHeights::ask(TableContent& content, const TableMetrics& metrics) {
    sections_.clear();
    captions_.clear();
    toBeMeasured_.clear();
    for (std::size_t section = 0; section < content.sectionCount(); ++section) {
        const auto& captions = captions_.emplace_back(content.header(section), content.footer(section));
        auto& heights = sections_.emplace_back();
        toBeMeasured_.emplace_back(content.rowCount(section));
        heights.rows.reserve(content.rowCount(section));
        heights.header = headerHeight(captions.header, section == 0, metrics);
        heights.footer = footerHeight(captions.footer, metrics);
        for (std::size_t row = 0; row < content.rowCount(section); ++row)
            heights.rows.push_back(askRow(content, {section, row}));
    }
}

double TableHeights::askRow(TableContent& content, IndexPath row) {
    if (const auto height = content.rowHeight(row))
        return *height;
    toBeMeasured_[row.section][row.row] = true;
    const auto measured = measured_.find(row);
    return measured != measured_.end() ? measured->second : TableMetrics::minimumRowHeight;
}

bool TableHeights::setMeasured(IndexPath row, double height) {
    toBeMeasured_[row.section][row.row] = false;
    measured_.insert_or_assign(row, height);
    return std::exchange(sections_[row.section].rows[row.row], height) != height;
}
