#pragma once

#include "LexicographicCosts.h"
#include "SimplexTableau.h"

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

/// A linear programme over symbols that are zero or more, at its least cost at all times: the dual simplex
/// method follows conditions that come, the primal one conditions that go. Owned by
/// a solver.
class LexicographicSimplex {
public:
    /// The symbols that one condition has for itself.
    using OwnSymbols = std::vector<Symbol>;

    /// A symbol whose value is charged as size.
    Symbol makeSize(std::uint64_t variableNumber);

    /// Forgets a symbol of `makeSize` that no condition has any more.
    void drop(Symbol symbol);

    [[nodiscard]] double value(Symbol symbol) const { return tableau_.value(symbol); }

    [[nodiscard]] bool hasSymbols() const { return tableau_.hasSymbols(); }

    /// The row has to be zero. \returns nothing, with all as it was, when it cannot be
    std::optional<OwnSymbols> addEquation(const SparseRow& row);

    /// The row has to be zero or more. \returns nothing, with all as it was, when it cannot be
    std::optional<OwnSymbols> addInequality(const SparseRow& row);

    /// The row is charged as an error, whatever its sign. \returns the symbols of the errors above and below
    /// zero
    OwnSymbols addSoftEquation(const SparseRow& row, double priority, std::uint64_t age);

    /// The row is charged as an error where it is below zero.
    OwnSymbols addSoftInequality(const SparseRow& row, double priority, std::uint64_t age);

    /// Takes a condition back and forgets its symbols.
    void removeCondition(const OwnSymbols& own);

    /// Whether rounding kept the last change from coming to an end, so that values may be off. A simplex that
    /// gets the same conditions afresh does better.
    [[nodiscard]] bool isStuck() const { return stuck_; }

private:
    struct Pivot {
        Symbol leaving;
        Symbol entering;
    };

    Symbol makeSymbol();
    Symbol makeFixedSymbol();
    [[nodiscard]] double evaluate(const SparseRow& row) const;
    void pivot(Symbol leaving, Symbol entering);
    [[nodiscard]] std::optional<Symbol> cheapestEntering(Symbol leaving, double direction) const;
    [[nodiscard]] std::optional<Symbol> enteringForFixed(Symbol fixed) const;
    bool restoreFeasibility();
    void undo(Symbol added);
    void makeBasic(Symbol symbol);
    [[nodiscard]] std::optional<Symbol> fixedBasic(Symbol symbol) const;
    [[nodiscard]] std::optional<Symbol> firstToVanish(Symbol entering, double direction) const;
    void restoreOptimum(std::set<Symbol> suspects);
    [[nodiscard]] std::size_t pivotLimit() const;

    SimplexTableau tableau_;
    LexicographicCosts costs_;
    std::vector<bool> fixed_;    ///< whether a symbol has to stay zero, by symbol
    std::set<Symbol> suspects_;  ///< basic symbols that may have become negative
    std::vector<Pivot> journal_; ///< of the last condition to be added
    bool stuck_ = false;
};
