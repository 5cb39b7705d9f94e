#pragma once

#include "SparseRow.h"

#include <vector>

/// A system of linear equations, solved for some of its symbols, the basic ones: each has a row over the
/// others, which are zero. It knows in which rows a symbol stands. Part of a simplex, which decides what to
/// solve for.
class SimplexTableau {
public:
    /// A symbol that stands nowhere yet. Numbers are used again.
    Symbol makeSymbol();

    /// Forgets a symbol that is not basic, and what rows still have of it.
    void dropSymbol(Symbol symbol);

    [[nodiscard]] bool isBasic(Symbol symbol) const { return entries_[symbol].basic; }

    [[nodiscard]] const SparseRow& row(Symbol basic) const { return entries_[basic].row; }

    /// The basic symbols in whose rows a symbol stands, in order.
    [[nodiscard]] const std::vector<Symbol>& column(Symbol symbol) const { return entries_[symbol].column; }

    [[nodiscard]] double value(Symbol symbol) const;

    [[nodiscard]] bool hasSymbols() const { return free_.size() < entries_.size(); }

    /// Makes a symbol that stands nowhere basic.
    /// \param row over any symbols but this one
    void addRow(Symbol basic, const SparseRow& row);

    /// Takes an equation away. Its symbol is then zero like the others.
    void removeRow(Symbol basic);

    /// Solves the row of `leaving` for `entering`, which stands in it. \returns the other rows that changed
    std::vector<Symbol> pivot(Symbol leaving, Symbol entering);

private:
    struct Entry {
        bool basic = false;
        SparseRow row;
        std::vector<Symbol> column;
    };

    void addToColumns(Symbol basic);
    void removeFromColumns(Symbol basic);
    void addToColumn(Symbol symbol, Symbol basic);
    void removeFromColumn(Symbol symbol, Symbol basic);

    std::vector<Entry> entries_; ///< by symbol
    std::vector<Symbol> free_;
};
