#include "tables/TableCaptionViews.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "TextLayout.h"
#include "views/UILabelPeer.h"

#include <QString>
#include <string>

namespace {

using Edge = TableCaptionViews::Edge;

constexpr FontStyle style{.size = 13};

std::string shownText(const TableCaption& caption, Edge edge) {
    return edge == Edge::Header ? QString::fromStdString(caption.text).toUpper().toStdString() : caption.text;
}

Ref<UIView> labelOf(const TableCaption& caption, Edge edge) {
    const auto label = make<UILabel>();
    auto& peer = peerOf<UILabelPeer>(*label);
    peer.setText(shownText(caption, edge));
    peer.setFontStyle(style);
    peer.setNumberOfLines(0);
    peer.setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    peer.setTextAlignment(caption.alignment);
    peer.setAccessibility(
        {.label = caption.text,
         .value = {},
         .role = edge == Edge::Header ? AccessibilityRole::Header : AccessibilityRole::StaticText,
         .isElement = true});
    return label;
}

} // namespace

double TableCaptionViews::textHeight(const TableCaption& caption, Edge edge, const TableMetrics& metrics) {
    return TextLayout(shownText(caption, edge), style,
                      {.maximumWidth = metrics.textWidth(), .pixelScale = metrics.scale()})
        .size()
        .height();
}

void TableCaptionViews::show(const std::set<std::size_t>& sections, const TableHeights& heights,
                             UIView& table) {
    std::erase_if(shown_, [&sections](const auto& entry) {
        const auto leaves = !sections.contains(entry.first.first);
        if (leaves)
            entry.second.view->peer().removeFromSuperview();
        return leaves;
    });
    for (const auto section : sections) {
        const auto& captions = heights.captions()[section];
        add(section, Edge::Header, captions.header, table);
        add(section, Edge::Footer, captions.footer, table);
    }
}

void TableCaptionViews::add(std::size_t section, Edge edge, const TableCaption& caption, UIView& table) {
    if (shown_.contains({section, edge}) || (!caption.view && caption.text.empty()))
        return;
    const auto added = shown(caption, edge);
    added.view->layer().peer().keepsPicture = true;
    table.peer().insertSubview(added.view, 0);
    shown_.emplace(std::pair(section, edge), added);
}

TableCaptionViews::Shown TableCaptionViews::shown(const TableCaption& caption, Edge edge) {
    if (caption.view)
        return {caption.view, false};
    return {labelOf(caption, edge), true};
}

void TableCaptionViews::place(const TableLayout& layout, const TableMetrics& metrics) {
    for (const auto& [where, shown] : shown_) {
        const auto& [section, edge] = where;
        place(shown, edge, edge == Edge::Header ? layout.header(section) : layout.footer(section), metrics);
    }
}

void TableCaptionViews::place(const Shown& shown, Edge edge, const TableLayout::Span& span,
                              const TableMetrics& metrics) {
    if (!shown.isText) {
        shown.view->setFrame(CGRectMake(0, span.top, metrics.width(), span.height));
        return;
    }
    const auto height = shown.view->peer().sizeThatFits({metrics.textWidth(), 0}).height;
    const auto top = edge == Edge::Header
                         ? span.bottom() - metrics.rounded(TableMetrics::headerTextBottom) - height
                         : span.top + metrics.rounded(TableMetrics::footerTextTop);
    shown.view->setFrame(CGRectMake(metrics.textLeft(), top, metrics.textWidth(), height));
}

void TableCaptionViews::clear() {
    for (const auto& [place, shown] : shown_)
        shown.view->peer().removeFromSuperview();
    shown_.clear();
}

Ref<UIView> TableCaptionViews::view(std::size_t section, Edge edge) const {
    const auto found = shown_.find({section, edge});
    return found != shown_.end() ? found->second.view : nullptr;
}
