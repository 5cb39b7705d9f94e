#pragma once

#include "LexicographicSimplex.h"
#include "LinearConstraint.h"

#include <cstdint>
#include <expected>
#include <map>
#include <vector>

enum class LinearSolverError {
    Unsatisfiable,     ///< it is required, and contradicts others that are
    NotFinite,         ///< a number in it is infinite or none
    UnknownConstraint, ///< the solver does not hold it
};

/// Finds the values of variables that satisfy all required linear constraints and, as well as can be, the
/// others. Errors are minimised in this order: the sum of those of the highest priority, of the next one, and
/// so on; then those of each constraint alone, by priority and then in order of adding, so that of equals
/// that compete the one added first wins; last the size of each variable, in order of making. So there is
/// always exactly one answer, and how the solver came to hold its constraints does not matter, but for their
/// order. It is up to date after each call. Made and owned by whoever has something to lay out.
class LinearSolver {
public:
    enum class ConstraintId : std::uint64_t {};

    /// \returns what it is removed by. After an error all is as it was.
    std::expected<ConstraintId, LinearSolverError> addConstraint(const LinearConstraint& constraint);

    std::expected<void, LinearSolverError> removeConstraint(ConstraintId constraint);

    /// 0 for a variable that no constraint has.
    [[nodiscard]] double value(const LinearVariable& variable) const;

    /// Whether it holds no constraint and nothing that remains of earlier ones.
    [[nodiscard]] bool isEmpty() const;

private:
    /// A variable as the difference of two symbols, of which one is zero.
    struct Parts {
        Symbol above = 0;
        Symbol below = 0;
        std::size_t uses = 0;
    };

    struct Constraint {
        LinearConstraint statement;
        LexicographicSimplex::OwnSymbols own; ///< none when only rounding keeps it from being satisfied
        std::vector<LinearVariable> variables;
    };

    const Parts& use(const LinearVariable& variable);
    void release(const std::vector<LinearVariable>& variables);
    SparseRow makeRow(const LinearExpression& expression, std::vector<LinearVariable>& used);
    bool insert(Constraint& constraint, ConstraintId age);
    void rebuildIfStuck();

    LexicographicSimplex simplex_;
    std::map<LinearVariable, Parts> variables_;
    std::map<ConstraintId, Constraint> constraints_;
    std::uint64_t added_ = 0;
};
