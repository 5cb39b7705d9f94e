#pragma once

#include "SimplexTableau.h"

#include <cstdint>
#include <optional>
#include <vector>

/// What units of symbols cost, in levels of which each counts for more than all that come after it. First,
/// for each priority from high to low, the sum of the errors of its constraints; then each constraint's own
/// error, by priority and then by age, so that of equals the oldest is kept best; last the size of each
/// variable, in their order, so that what nothing decides is as near to zero as it may be. So no weight is
/// ever too small to count, and exactly one assignment of values is the best. Owned by a simplex.
class LexicographicCosts {
public:
    void chargeError(Symbol symbol, double priority, std::uint64_t age);
    void chargeSize(Symbol symbol, std::uint64_t variableNumber);
    void discharge(Symbol symbol);

    /// The sign of what a unit more of a symbol that is not basic costs in all, 0 for nothing.
    [[nodiscard]] int sign(const SimplexTableau& tableau, Symbol symbol) const;

    /// Whether a unit of the first symbol costs less, in all, than `exchange` units of the second.
    [[nodiscard]] bool isCheaper(const SimplexTableau& tableau, Symbol first, Symbol second,
                                 double exchange) const;

private:
    enum class Tier { PriorityErrors, ConstraintErrors, Sizes };

    struct Charge {
        bool error;
        double rank; ///< less counts for more
        std::uint64_t number;
    };

    /// An amount at one level of a tier.
    struct Amount {
        double rank;
        std::uint64_t number;
        double cost;
    };

    void collect(std::vector<Amount>& amounts, Tier tier, const SimplexTableau& tableau, Symbol symbol,
                 double units) const;
    /// What a symbol is charged with at a tier; null for nothing.
    [[nodiscard]] const Charge* chargeOf(Symbol symbol, Tier tier) const;
    [[nodiscard]] int signOfDifference(const SimplexTableau& tableau, Symbol first,
                                       std::optional<Symbol> second, double exchange) const;

    std::vector<std::optional<Charge>> charges_; ///< by symbol
};
