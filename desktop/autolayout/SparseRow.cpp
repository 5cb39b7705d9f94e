#include "SparseRow.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// What is this much smaller than its summands, or than anything that counts, is what rounding left of zero.
constexpr double rounding = 1e-12;

bool cancel(double a, double b) {
    return std::abs(a + b) < rounding * std::max({std::abs(a), std::abs(b), 1.0});
}

} // namespace

double SparseRow::coefficient(Symbol symbol) const {
    const auto place = std::ranges::lower_bound(terms_, symbol, {}, &Term::symbol);
    return place != terms_.end() && place->symbol == symbol ? place->coefficient : 0;
}

void SparseRow::add(Symbol symbol, double coefficient) {
    SparseRow single;
    single.terms_.push_back({symbol, 1});
    add(single, coefficient);
}

SparseRow::Change SparseRow::add(const SparseRow& other, double factor) {
    Change change;
    constant_ += factor * other.constant_;
    std::vector<Term> merged;
    merged.reserve(terms_.size() + other.terms_.size());
    auto own = terms_.cbegin();
    for (const auto& [symbol, coefficient] : other.terms_) {
        while (own != terms_.cend() && own->symbol < symbol)
            merged.push_back(*own++);
        const bool had = own != terms_.cend() && own->symbol == symbol;
        const double old = had ? (own++)->coefficient : 0;
        const bool has = !cancel(old, factor * coefficient);
        if (has)
            merged.push_back({symbol, old + factor * coefficient});
        if (has && !had)
            change.gained.push_back(symbol);
        if (had && !has)
            change.lost.push_back(symbol);
    }
    merged.insert(merged.end(), own, terms_.cend());
    terms_ = std::move(merged);
    return change;
}

void SparseRow::remove(Symbol symbol) {
    std::erase_if(terms_, [symbol](const Term& term) { return term.symbol == symbol; });
}

void SparseRow::scale(double factor) {
    constant_ *= factor;
    for (auto& term : terms_)
        term.coefficient *= factor;
}

void SparseRow::solveFor(Symbol symbol, Symbol subject) {
    const double factor = coefficient(symbol);
    remove(symbol);
    const auto place = std::ranges::lower_bound(terms_, subject, {}, &Term::symbol);
    terms_.insert(place, {subject, -1});
    scale(-1 / factor);
}
