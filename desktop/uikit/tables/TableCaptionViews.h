#pragma once

#include "tables/TableHeights.h"
#include "tables/TableLayout.h"
#include "tables/TableMetrics.h"

#include <cstddef>
#include <map>
#include <set>
#include <utility>

/// The views above and below the cards of a table, of those sections that are near the screen.
class TableCaptionViews {
public:
    /// Which of a section's two.
    enum class Edge { Header, Footer };

    /// How high a text is, as it is set there.
    [[nodiscard]] static double textHeight(const TableCaption& caption, Edge edge,
                                           const TableMetrics& metrics);

    /// Makes the views of those sections that are missing, in `table`, and takes all others away.
    void show(const std::set<std::size_t>& sections, const TableHeights& heights, UIView& table);

    /// Puts the views where they belong.
    void place(const TableLayout& layout, const TableMetrics& metrics);

    /// Takes all views away.
    void clear();

    /// The view there; empty when the section has none, or is not near the screen.
    [[nodiscard]] Ref<UIView> view(std::size_t section, Edge edge) const;

private:
    struct Shown {
        Ref<UIView> view;
        bool isText = false;
    };

    [[nodiscard]] static Shown shown(const TableCaption& caption, Edge edge);
    static void place(const Shown& shown, Edge edge, const TableLayout::Span& span,
                      const TableMetrics& metrics);

    void add(std::size_t section, Edge edge, const TableCaption& caption, UIView& table);

    std::map<std::pair<std::size_t, Edge>, Shown> shown_;
};
