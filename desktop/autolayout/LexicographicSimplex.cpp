#include "LexicographicSimplex.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <utility>

namespace {

/// A symbol is negative from here on.
constexpr double tolerance = 1e-8;

/// What is demanded and cannot be had is a conflict from here on; less is what rounding did.
constexpr double conflict = 1e-6;

/// A factor that is less may be what rounding left of none, and is not divided by.
constexpr double leastPivot = 1e-7;

} // namespace

Symbol LexicographicSimplex::makeSymbol() {
    const auto symbol = tableau_.makeSymbol();
    costs_.discharge(symbol);
    if (fixed_.size() <= symbol)
        fixed_.resize(symbol + std::size_t{1});
    fixed_[symbol] = false;
    return symbol;
}

Symbol LexicographicSimplex::makeFixedSymbol() {
    const auto symbol = makeSymbol();
    fixed_[symbol] = true;
    return symbol;
}

Symbol LexicographicSimplex::makeSize(std::uint64_t variableNumber) {
    const auto symbol = makeSymbol();
    costs_.chargeSize(symbol, variableNumber);
    return symbol;
}

void LexicographicSimplex::drop(Symbol symbol) {
    costs_.discharge(symbol);
    tableau_.dropSymbol(symbol);
}

std::optional<LexicographicSimplex::OwnSymbols> LexicographicSimplex::addEquation(const SparseRow& row) {
    journal_.clear();
    const auto fixed = makeFixedSymbol();
    tableau_.addRow(fixed, row);
    if (const auto entering = enteringForFixed(fixed))
        pivot(fixed, *entering);
    if (std::abs(tableau_.value(fixed)) < conflict && restoreFeasibility())
        return OwnSymbols{fixed};
    undo(fixed);
    return std::nullopt;
}

std::optional<LexicographicSimplex::OwnSymbols> LexicographicSimplex::addInequality(const SparseRow& row) {
    journal_.clear();
    const auto slack = makeSymbol();
    tableau_.addRow(slack, row);
    suspects_.insert(slack);
    if (restoreFeasibility())
        return OwnSymbols{slack};
    undo(slack);
    return std::nullopt;
}

LexicographicSimplex::OwnSymbols LexicographicSimplex::addSoftEquation(const SparseRow& row, double priority,
                                                                       std::uint64_t age) {
    journal_.clear();
    const OwnSymbols errors{makeSymbol(), makeSymbol()};
    // The error that would be negative is basic at first and leaves at once, by whatever way costs least: the
    // other error is one. Until then it costs nothing, so that the costs are at their least.
    const bool isAbove = evaluate(row) > 0;
    const auto leaving = isAbove ? errors[1] : errors[0];
    const auto other = isAbove ? errors[0] : errors[1];
    auto solved = row;
    if (isAbove)
        solved.scale(-1);
    solved.add(other, 1);
    costs_.chargeError(other, priority, age);
    tableau_.addRow(leaving, solved);
    pivot(leaving, cheapestEntering(leaving, 1).value_or(other));
    costs_.chargeError(leaving, priority, age);
    restoreFeasibility();
    return errors;
}

LexicographicSimplex::OwnSymbols LexicographicSimplex::addSoftInequality(const SparseRow& row,
                                                                         double priority, std::uint64_t age) {
    journal_.clear();
    const OwnSymbols own{makeSymbol(), makeSymbol()};
    auto solved = row;
    solved.add(own[1], 1);
    costs_.chargeError(own[1], priority, age);
    tableau_.addRow(own[0], solved);
    suspects_.insert(own[0]);
    restoreFeasibility();
    return own;
}

void LexicographicSimplex::removeCondition(const OwnSymbols& own) {
    stuck_ = false;
    for (const auto symbol : own)
        costs_.discharge(symbol);
    // Without its condition a symbol may have any value. Made basic it has a row that matters to no other.
    const auto basic = std::ranges::find_if(own, [this](Symbol symbol) { return tableau_.isBasic(symbol); });
    const auto free = basic != own.end() ? *basic : own.front();
    if (basic == own.end())
        makeBasic(free);
    std::set<Symbol> suspects;
    for (const auto& term : tableau_.row(free).terms())
        suspects.insert(term.symbol);
    tableau_.removeRow(free);
    for (const auto symbol : own) {
        suspects.erase(symbol);
        drop(symbol);
    }
    restoreOptimum(std::move(suspects));
}

double LexicographicSimplex::evaluate(const SparseRow& row) const {
    double sum = row.constant();
    for (const auto& [symbol, coefficient] : row.terms())
        sum += coefficient * value(symbol);
    return sum;
}

void LexicographicSimplex::pivot(Symbol leaving, Symbol entering) {
    const auto changed = tableau_.pivot(leaving, entering);
    suspects_.insert(changed.begin(), changed.end());
    suspects_.insert(entering);
    journal_.push_back({leaving, entering});
}

std::optional<Symbol> LexicographicSimplex::cheapestEntering(Symbol leaving, double direction) const {
    std::optional<SparseRow::Term> best;
    for (const auto& term : tableau_.row(leaving).terms()) {
        if (fixed_[term.symbol] || term.coefficient * direction < leastPivot)
            continue;
        if (!best ||
            costs_.isCheaper(tableau_, term.symbol, best->symbol, term.coefficient / best->coefficient))
            best = term;
    }
    return best ? std::optional(best->symbol) : std::nullopt;
}

std::optional<Symbol> LexicographicSimplex::enteringForFixed(Symbol fixed) const {
    const double value = tableau_.value(fixed);
    const double direction = value < 0 ? 1 : -1;
    const auto entering = cheapestEntering(fixed, direction);
    if (entering || std::abs(value) >= conflict)
        return entering;
    return cheapestEntering(fixed, -direction);
}

bool LexicographicSimplex::restoreFeasibility() {
    stuck_ = false;
    while (!suspects_.empty() && !stuck_) {
        const auto suspect = suspects_.extract(suspects_.begin()).value();
        if (!tableau_.isBasic(suspect) || fixed_[suspect] || tableau_.value(suspect) > -tolerance)
            continue;
        if (const auto entering = cheapestEntering(suspect, 1))
            pivot(suspect, *entering);
        else if (tableau_.value(suspect) < -conflict)
            return false;
        stuck_ = journal_.size() > pivotLimit();
    }
    return true;
}

void LexicographicSimplex::undo(Symbol added) {
    for (const auto& done : std::views::reverse(journal_))
        tableau_.pivot(done.entering, done.leaving);
    suspects_.clear();
    tableau_.removeRow(added);
    drop(added);
}

void LexicographicSimplex::makeBasic(Symbol symbol) {
    auto leaving = fixedBasic(symbol);
    if (!leaving)
        leaving = firstToVanish(symbol, 1);
    if (!leaving)
        leaving = firstToVanish(symbol, -1);
    if (leaving)
        tableau_.pivot(*leaving, symbol);
    else
        stuck_ = true;
}

std::optional<Symbol> LexicographicSimplex::fixedBasic(Symbol symbol) const {
    const auto& column = tableau_.column(symbol);
    const auto place = std::ranges::find_if(column, [this](Symbol basic) { return fixed_[basic]; });
    return place != column.end() ? std::optional(*place) : std::nullopt;
}

std::optional<Symbol> LexicographicSimplex::firstToVanish(Symbol entering, double direction) const {
    std::optional<Symbol> first;
    double least = 0;
    for (const auto basic : tableau_.column(entering)) {
        const double loss = -direction * tableau_.row(basic).coefficient(entering);
        const double way = tableau_.value(basic) / loss;
        if (loss >= leastPivot && !fixed_[basic] && (!first || way < least)) {
            first = basic;
            least = way;
        }
    }
    return first;
}

void LexicographicSimplex::restoreOptimum(std::set<Symbol> suspects) {
    std::size_t pivots = 0;
    while (!suspects.empty() && !stuck_) {
        const auto entering = suspects.extract(suspects.begin()).value();
        if (tableau_.isBasic(entering) || fixed_[entering] || costs_.sign(tableau_, entering) >= 0)
            continue;
        const auto leaving = firstToVanish(entering, 1);
        if (!leaving)
            continue;
        tableau_.pivot(*leaving, entering);
        stuck_ = ++pivots > pivotLimit();
        for (const auto& term : tableau_.row(entering).terms())
            suspects.insert(term.symbol);
    }
}

std::size_t LexicographicSimplex::pivotLimit() const {
    return 1000 + 4 * fixed_.size();
}
