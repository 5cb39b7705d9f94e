#include "LinearSolver.h"

#include <cmath>
#include <utility>

namespace {

/// A factor nearer to zero is what the rounding of a sum left of none.
constexpr double negligibleCoefficient = 1e-9;

} // namespace

std::expected<LinearSolver::ConstraintId, LinearSolverError>
LinearSolver::addConstraint(const LinearConstraint& constraint) {
    if (!constraint.difference().isFinite() || !std::isfinite(constraint.priority()))
        return std::unexpected(LinearSolverError::NotFinite);
    const ConstraintId id{added_++};
    Constraint added{constraint, {}, {}};
    if (!insert(added, id)) {
        release(added.variables);
        return std::unexpected(LinearSolverError::Unsatisfiable);
    }
    constraints_.emplace(id, std::move(added));
    rebuildIfStuck();
    return id;
}

std::expected<void, LinearSolverError> LinearSolver::removeConstraint(ConstraintId constraint) {
    const auto place = constraints_.find(constraint);
    if (place == constraints_.end())
        return std::unexpected(LinearSolverError::UnknownConstraint);
    if (!place->second.own.empty())
        simplex_.removeCondition(place->second.own);
    release(place->second.variables);
    constraints_.erase(place);
    rebuildIfStuck();
    return {};
}

double LinearSolver::value(const LinearVariable& variable) const {
    const auto place = variables_.find(variable);
    if (place == variables_.end())
        return 0;
    return simplex_.value(place->second.above) - simplex_.value(place->second.below);
}

bool LinearSolver::isEmpty() const {
    return constraints_.empty() && variables_.empty() && !simplex_.hasSymbols();
}

const LinearSolver::Parts& LinearSolver::use(const LinearVariable& variable) {
    auto& parts = variables_[variable];
    if (parts.uses++ == 0) {
        parts.above = simplex_.makeSize(variable.number());
        parts.below = simplex_.makeSize(variable.number());
    }
    return parts;
}

void LinearSolver::release(const std::vector<LinearVariable>& variables) {
    for (const auto& variable : variables) {
        const auto place = variables_.find(variable);
        if (--place->second.uses > 0)
            continue;
        simplex_.drop(place->second.above);
        simplex_.drop(place->second.below);
        variables_.erase(place);
    }
}

SparseRow LinearSolver::makeRow(const LinearExpression& expression, std::vector<LinearVariable>& used) {
    SparseRow row;
    row.addConstant(expression.constant());
    for (const auto& [variable, coefficient] : expression.terms()) {
        if (std::abs(coefficient) < negligibleCoefficient)
            continue;
        const auto& parts = use(variable);
        row.add(parts.above, coefficient);
        row.add(parts.below, -coefficient);
        used.push_back(variable);
    }
    return row;
}

bool LinearSolver::insert(Constraint& constraint, ConstraintId age) {
    const auto& statement = constraint.statement;
    auto row = makeRow(statement.difference(), constraint.variables);
    if (statement.relation() == LinearRelation::LessOrEqual)
        row.scale(-1);
    const bool isEquation = statement.relation() == LinearRelation::Equal;
    const auto number = static_cast<std::uint64_t>(age);
    if (!statement.isRequired()) {
        constraint.own = isEquation ? simplex_.addSoftEquation(row, statement.priority(), number)
                                    : simplex_.addSoftInequality(row, statement.priority(), number);
        return true;
    }
    auto own = isEquation ? simplex_.addEquation(row) : simplex_.addInequality(row);
    constraint.own = std::move(own).value_or(LexicographicSimplex::OwnSymbols{});
    return !constraint.own.empty();
}

void LinearSolver::rebuildIfStuck() {
    if (!simplex_.isStuck())
        return;
    simplex_ = {};
    variables_.clear();
    for (auto& [id, constraint] : constraints_) {
        constraint.variables.clear();
        insert(constraint, id);
    }
}
