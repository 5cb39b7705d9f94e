#include "SimplexTableau.h"

#include <algorithm>
#include <utility>

Symbol SimplexTableau::makeSymbol() {
    if (free_.empty()) {
        entries_.emplace_back();
        return static_cast<Symbol>(entries_.size() - 1);
    }
    const auto symbol = free_.back();
    free_.pop_back();
    return symbol;
}

void SimplexTableau::dropSymbol(Symbol symbol) {
    for (const auto basic : entries_[symbol].column)
        entries_[basic].row.remove(symbol);
    entries_[symbol].column.clear();
    free_.push_back(symbol);
}

double SimplexTableau::value(Symbol symbol) const {
    return isBasic(symbol) ? row(symbol).constant() : 0;
}

void SimplexTableau::addRow(Symbol basic, const SparseRow& row) {
    SparseRow solved;
    solved.addConstant(row.constant());
    for (const auto& [symbol, coefficient] : row.terms()) {
        if (isBasic(symbol))
            solved.add(this->row(symbol), coefficient);
        else
            solved.add(symbol, coefficient);
    }
    entries_[basic].row = std::move(solved);
    entries_[basic].basic = true;
    addToColumns(basic);
}

void SimplexTableau::removeRow(Symbol basic) {
    removeFromColumns(basic);
    entries_[basic].row = {};
    entries_[basic].basic = false;
}

std::vector<Symbol> SimplexTableau::pivot(Symbol leaving, Symbol entering) {
    auto pivotRow = row(leaving);
    removeRow(leaving);
    pivotRow.solveFor(entering, leaving);
    const auto changed = std::exchange(entries_[entering].column, {});
    for (const auto basic : changed) {
        auto& target = entries_[basic].row;
        const double factor = target.coefficient(entering);
        target.remove(entering);
        const auto change = target.add(pivotRow, factor);
        for (const auto symbol : change.gained)
            addToColumn(symbol, basic);
        for (const auto symbol : change.lost)
            removeFromColumn(symbol, basic);
    }
    entries_[entering].row = std::move(pivotRow);
    entries_[entering].basic = true;
    addToColumns(entering);
    return changed;
}

void SimplexTableau::addToColumns(Symbol basic) {
    for (const auto& term : row(basic).terms())
        addToColumn(term.symbol, basic);
}

void SimplexTableau::removeFromColumns(Symbol basic) {
    for (const auto& term : row(basic).terms())
        removeFromColumn(term.symbol, basic);
}

void SimplexTableau::addToColumn(Symbol symbol, Symbol basic) {
    auto& column = entries_[symbol].column;
    column.insert(std::ranges::lower_bound(column, basic), basic);
}

void SimplexTableau::removeFromColumn(Symbol symbol, Symbol basic) {
    auto& column = entries_[symbol].column;
    column.erase(std::ranges::lower_bound(column, basic));
}
