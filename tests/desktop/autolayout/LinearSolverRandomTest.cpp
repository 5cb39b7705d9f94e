#include "LinearSolver.h"
#include "VertexSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <random>
#include <vector>

namespace {

/// A solver that random steps are taken with, and what it should hold.
class Walk {
public:
    Walk(unsigned seed, std::size_t variableCount, std::size_t constraintLimit)
        : random_(seed),
          variables_(variableCount),
          limit_(constraintLimit) {}

    void step() {
        if (held_.empty() || (held_.size() < limit_ && pick(0, 9) < 6))
            add();
        else
            remove();
    }

    void addUntilFull() {
        while (held_.size() < limit_)
            add();
    }

    void removeAll() {
        while (!held_.empty())
            remove();
    }

    /// All constraints, in order of adding.
    [[nodiscard]] std::vector<LinearConstraint> constraints() const {
        std::vector<LinearConstraint> all;
        all.reserve(held_.size());
        for (const auto& held : held_)
            all.push_back(held.constraint);
        return all;
    }

    [[nodiscard]] std::vector<double> values() const { return valuesOf(solver_); }

    [[nodiscard]] std::vector<double> valuesAfresh() const {
        LinearSolver fresh;
        for (const auto& constraint : constraints())
            EXPECT_TRUE(fresh.addConstraint(constraint));
        return valuesOf(fresh);
    }

    [[nodiscard]] const std::vector<LinearVariable>& variables() const { return variables_; }

    [[nodiscard]] const LinearSolver& solver() const { return solver_; }

    /// The last constraint to be refused.
    [[nodiscard]] const std::optional<LinearConstraint>& refused() const { return refused_; }

    void forgetRefused() { refused_.reset(); }

private:
    struct Held {
        LinearConstraint constraint;
        LinearSolver::ConstraintId id;
    };

    int pick(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }

    const auto& pickFrom(const auto& choices) {
        return choices[static_cast<std::size_t>(pick(0, static_cast<int>(choices.size()) - 1))];
    }

    const LinearVariable& pickVariable() { return pickFrom(variables_); }

    double pickPriority() {
        static constexpr std::array priorities{1000.0, 1000.0, 1000.0, 999.0, 751.0,
                                               750.0,  750.0,  250.0,  250.0, 1.0};
        return pickFrom(priorities);
    }

    LinearConstraint pickConstraint() {
        static constexpr std::array factors{1.0, 1.0, 1.0, -1.0, -1.0, 2.0, -2.0, 0.5, 3.0};
        LinearExpression sum = pick(-20, 20);
        for (int count = pick(1, 3); count > 0; --count)
            sum += pickFrom(factors) * pickVariable();
        return {sum, static_cast<LinearRelation>(pick(0, 2)), 0, pickPriority()};
    }

    void add() {
        const auto constraint = pickConstraint();
        const auto before = values();
        const auto id = solver_.addConstraint(constraint);
        if (id) {
            held_.push_back({constraint, *id});
            return;
        }
        EXPECT_EQ(id.error(), LinearSolverError::Unsatisfiable);
        refused_ = constraint;
        const auto after = values();
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_NEAR(after[i], before[i], 1e-9);
    }

    void remove() {
        const auto place = std::next(held_.begin(), pick(0, static_cast<int>(held_.size()) - 1));
        EXPECT_TRUE(solver_.removeConstraint(place->id));
        held_.erase(place);
    }

    [[nodiscard]] std::vector<double> valuesOf(const LinearSolver& solver) const {
        std::vector<double> all;
        all.reserve(variables_.size());
        for (const auto& variable : variables_)
            all.push_back(solver.value(variable));
        return all;
    }

    std::mt19937 random_;
    std::vector<LinearVariable> variables_;
    std::size_t limit_;
    LinearSolver solver_;
    std::vector<Held> held_; ///< in order of adding
    std::optional<LinearConstraint> refused_;
};

void expectNear(const std::vector<double>& values, const std::vector<double>& expected) {
    ASSERT_EQ(values.size(), expected.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_NEAR(values[i], expected[i], 1e-6) << "variable " << i;
}

double errorOf(const LinearConstraint& constraint, const LinearSolver& solver) {
    double value = constraint.difference().constant();
    for (const auto& term : constraint.difference().terms())
        value += term.coefficient * solver.value(term.variable);
    switch (constraint.relation()) {
    case LinearRelation::LessOrEqual:
        return std::max(value, 0.0);
    case LinearRelation::Equal:
        return std::abs(value);
    case LinearRelation::GreaterOrEqual:
        break;
    }
    return std::max(-value, 0.0);
}

class LinearSolverRandomTest : public testing::TestWithParam<unsigned> {};

} // namespace

TEST_P(LinearSolverRandomTest, EveryStepEndsAtTheBestCornerAndOnlyContradictionsAreRefused) {
    Walk walk(GetParam(), 3, 7);
    for (int i = 0; i < 60; ++i) {
        walk.forgetRefused();
        walk.step();
        auto constraints = walk.constraints();
        const auto best = VertexSearch(walk.variables(), constraints).best();
        ASSERT_TRUE(best);
        expectNear(walk.values(), *best);
        if (walk.refused()) {
            constraints.push_back(*walk.refused());
            EXPECT_FALSE(VertexSearch(walk.variables(), constraints).best());
        }
        if (HasFailure())
            FAIL() << "at step " << i;
    }
}

TEST_P(LinearSolverRandomTest, AWalkEndsWhereAFreshSolverBegins) {
    Walk walk(GetParam(), 12, 30);
    walk.addUntilFull();
    for (int i = 0; i < 40; ++i) {
        walk.step();
        for (const auto& constraint : walk.constraints()) {
            if (constraint.isRequired()) {
                EXPECT_LT(errorOf(constraint, walk.solver()), 1e-6);
            }
        }
        expectNear(walk.values(), walk.valuesAfresh());
        if (HasFailure())
            FAIL() << "at step " << i;
    }
    walk.removeAll();
    EXPECT_TRUE(walk.solver().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, LinearSolverRandomTest, testing::Range(0U, 40U));

TEST(LinearSolverRandom, EntangledConstraintsThatMeetTheLimitsOfRoundingEndWhereAFreshSolverBegins) {
    Walk walk(5, 100, 300);
    walk.addUntilFull();
    for (int i = 0; i < 300; ++i)
        walk.step();
    expectNear(walk.values(), walk.valuesAfresh());
    walk.removeAll();
    EXPECT_TRUE(walk.solver().isEmpty());
}

TEST(LinearSolverRandom, ThousandsOfStepsLeaveNoTrace) {
    Walk walk(4711, 8, 16);
    for (int i = 0; i < 20'000; ++i)
        walk.step();
    expectNear(walk.values(), walk.valuesAfresh());
    walk.removeAll();
    EXPECT_TRUE(walk.solver().isEmpty());
}
