#include "LexicographicCosts.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

/// Costs nearer to zero than this are what rounding left of none.
constexpr double negligibleCost = 1e-7;

/// The sign of the first level at which the amounts do not cancel.
int signOfFirst(auto& amounts) {
    const auto level = [](const auto& amount) { return std::tie(amount.rank, amount.number); };
    std::ranges::sort(amounts, [&](const auto& a, const auto& b) { return level(a) < level(b); });
    for (auto first = amounts.begin(); first != amounts.end();) {
        double sum = 0;
        auto last = first;
        for (; last != amounts.end() && level(*last) == level(*first); ++last)
            sum += last->cost;
        if (std::abs(sum) > negligibleCost)
            return sum < 0 ? -1 : 1;
        first = last;
    }
    return 0;
}

} // namespace

void LexicographicCosts::chargeError(Symbol symbol, double priority, std::uint64_t age) {
    discharge(symbol);
    charges_[symbol] = {true, -priority, age};
}

void LexicographicCosts::chargeSize(Symbol symbol, std::uint64_t variableNumber) {
    discharge(symbol);
    charges_[symbol] = {false, 0, variableNumber};
}

void LexicographicCosts::discharge(Symbol symbol) {
    if (charges_.size() <= symbol)
        charges_.resize(symbol + std::size_t{1});
    charges_[symbol].reset();
}

int LexicographicCosts::sign(const SimplexTableau& tableau, Symbol symbol) const {
    return signOfDifference(tableau, symbol, std::nullopt, 0);
}

bool LexicographicCosts::isCheaper(const SimplexTableau& tableau, Symbol first, Symbol second,
                                   double exchange) const {
    return signOfDifference(tableau, first, second, exchange) < 0;
}

int LexicographicCosts::signOfDifference(const SimplexTableau& tableau, Symbol first,
                                         std::optional<Symbol> second, double exchange) const {
    std::vector<Amount> amounts;
    for (const auto tier : {Tier::PriorityErrors, Tier::ConstraintErrors, Tier::Sizes}) {
        amounts.clear();
        collect(amounts, tier, tableau, first, 1);
        if (second)
            collect(amounts, tier, tableau, *second, -exchange);
        if (const auto sign = signOfFirst(amounts); sign != 0)
            return sign;
    }
    return 0;
}

void LexicographicCosts::collect(std::vector<Amount>& amounts, Tier tier, const SimplexTableau& tableau,
                                 Symbol symbol, double units) const {
    const auto add = [&](const Charge& charge, double cost) {
        amounts.push_back({charge.rank, tier == Tier::PriorityErrors ? 0 : charge.number, cost});
    };
    if (const auto* charge = chargeOf(symbol, tier))
        add(*charge, units);
    for (const auto basic : tableau.column(symbol)) {
        if (const auto* charge = chargeOf(basic, tier))
            add(*charge, units * tableau.row(basic).coefficient(symbol));
    }
}

const LexicographicCosts::Charge* LexicographicCosts::chargeOf(Symbol symbol, Tier tier) const {
    const auto& charge = charges_[symbol];
    return charge && charge->error == (tier != Tier::Sizes) ? &*charge : nullptr;
}
