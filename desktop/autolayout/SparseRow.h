#pragma once

#include <cstdint>
#include <vector>

/// A column or row of a simplex tableau, by number.
using Symbol = std::uint32_t;

/// A constant plus a sum of symbols with factors. What rounding leaves of factors that cancel is dropped.
class SparseRow {
public:
    struct Term {
        Symbol symbol;
        double coefficient;
    };

    /// The symbols that a change gave to a row or took from it.
    struct Change {
        std::vector<Symbol> gained;
        std::vector<Symbol> lost;
    };

    [[nodiscard]] double constant() const { return constant_; }

    /// In order of symbols.
    [[nodiscard]] const std::vector<Term>& terms() const { return terms_; }

    /// The factor of a symbol; 0 when the row does not have it.
    [[nodiscard]] double coefficient(Symbol symbol) const;

    void addConstant(double amount) { constant_ += amount; }

    void add(Symbol symbol, double coefficient);
    Change add(const SparseRow& other, double factor);
    void remove(Symbol symbol);
    void scale(double factor);

    /// Turns `subject = this row` into the row that `symbol`, one of its own, equals.
    void solveFor(Symbol symbol, Symbol subject);

private:
    double constant_ = 0;
    std::vector<Term> terms_;
};
