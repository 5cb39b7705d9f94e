#include "LinearSolver.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

constexpr auto equal = LinearRelation::Equal;
constexpr auto atLeast = LinearRelation::GreaterOrEqual;
constexpr auto atMost = LinearRelation::LessOrEqual;

/// The two edges and the width of something.
struct Span {
    LinearVariable left;
    LinearVariable width;

    [[nodiscard]] LinearExpression right() const { return left + width; }

    [[nodiscard]] LinearExpression centre() const { return left + 0.5 * width; }
};

class LinearSolverTest : public testing::Test {
protected:
    LinearSolver::ConstraintId add(const LinearExpression& left, LinearRelation relation,
                                   const LinearExpression& right,
                                   double priority = LinearConstraint::required) {
        const auto id = solver.addConstraint({left, relation, right, priority});
        EXPECT_TRUE(id);
        return id.value_or(LinearSolver::ConstraintId{});
    }

    void expectRefused(const LinearExpression& left, LinearRelation relation, const LinearExpression& right) {
        const auto id = solver.addConstraint({left, relation, right});
        ASSERT_FALSE(id);
        EXPECT_EQ(id.error(), LinearSolverError::Unsatisfiable);
    }

    void expectValue(const LinearVariable& variable, double value) const {
        EXPECT_NEAR(solver.value(variable), value, 1e-9);
    }

    /// A span from 0 to `width`.
    void addContainer(double width) {
        add(container.left, equal, 0);
        add(container.width, equal, width);
    }

    LinearSolver solver;
    Span container;
    LinearVariable x;
    LinearVariable y;
    LinearVariable z;
};

} // namespace

TEST_F(LinearSolverTest, WhatNoConstraintHasIsZero) {
    expectValue(x, 0);
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverTest, Centres) {
    const Span view;
    addContainer(390);
    add(view.width, equal, 100);
    add(view.centre(), equal, container.centre());
    expectValue(view.left, 145);
}

TEST_F(LinearSolverTest, DividesIntoEqualSizes) {
    std::array<Span, 3> views;
    addContainer(320);
    add(views[0].left, equal, container.left + 16);
    add(views[1].left, equal, views[0].right() + 8);
    add(views[2].left, equal, views[1].right() + 8);
    add(views[2].right(), equal, container.right() - 16);
    add(views[1].width, equal, views[0].width);
    add(views[2].width, equal, views[0].width);
    for (const auto& view : views)
        expectValue(view.width, 272.0 / 3);
    expectValue(views[2].left, 16 + 2 * (272.0 / 3 + 8));
}

TEST_F(LinearSolverTest, KeepsProportions) {
    addContainer(375);
    add(x, equal, 0.4 * container.width - 10);
    add(y, equal, (9.0 / 16) * x);
    expectValue(x, 140);
    expectValue(y, 78.75);
}

TEST_F(LinearSolverTest, LimitsHoldWhatIsWished) {
    add(x, atLeast, 44);
    add(x, atMost, 100);
    const auto small = add(x, equal, 20, 750);
    expectValue(x, 44);
    EXPECT_TRUE(solver.removeConstraint(small));
    add(x, equal, 300, 750);
    expectValue(x, 100);
}

TEST_F(LinearSolverTest, ValuesMayBeNegative) {
    add(x, equal, -40);
    add(y, atMost, x - 2);
    expectValue(x, -40);
    expectValue(y, -42);
}

TEST_F(LinearSolverTest, TheHigherPriorityWinsWhicheverCameFirst) {
    add(x, equal, 10, 250);
    add(x, equal, 20, 750);
    expectValue(x, 20);
    add(y, equal, 20, 750);
    add(y, equal, 10, 250);
    expectValue(y, 20);
}

TEST_F(LinearSolverTest, FractionsOfAPriorityCount) {
    add(x, equal, 10, 250);
    add(x, equal, 20, 250.25);
    expectValue(x, 20);
}

TEST_F(LinearSolverTest, EachPriorityOutweighsAHundredOfTheNext) {
    static constexpr std::array ladder{1000.0, 999.0, 751.0, 750.0, 749.0, 501.0,
                                       500.0,  251.0, 250.0, 249.0, 50.0,  1.0};
    for (std::size_t i = 0; i + 1 < ladder.size(); ++i) {
        const LinearVariable variable;
        for (int count = 0; count < 100; ++count)
            add(variable, equal, 1000, ladder[i + 1]);
        add(variable, equal, 10, ladder[i]);
        expectValue(variable, 10);
    }
}

TEST_F(LinearSolverTest, ALadderOfPrioritiesOnOneSumOrdersRightWithAHundredEach) {
    static constexpr std::array ladder{1.0,   50.0,  249.0, 250.0, 251.0, 500.0,
                                       501.0, 749.0, 750.0, 751.0, 999.0};
    std::vector<LinearVariable> variables(ladder.size());
    LinearExpression sum;
    for (std::size_t i = 0; i < ladder.size(); ++i) {
        add(variables[i], atLeast, 0);
        for (int count = 0; count < 100; ++count)
            add(variables[i], equal, 10, ladder[i]);
        sum += variables[i];
    }
    add(sum, equal, 45); // four and a half of eleven can be met
    for (std::size_t i = 0; i < 6; ++i)
        expectValue(variables[i], 0);
    expectValue(variables[6], 5);
    for (std::size_t i = 7; i < ladder.size(); ++i)
        expectValue(variables[i], 10);
}

TEST_F(LinearSolverTest, OfEqualsTheOneAddedFirstWins) {
    add(x, equal, 10, 250);
    add(x, equal, 20, 250);
    expectValue(x, 10);
    add(y, equal, 20, 250);
    add(y, equal, 10, 250);
    expectValue(y, 20);
}

TEST_F(LinearSolverTest, OfEqualsThatShareARowTheOneAddedFirstKeepsItsSize) {
    addContainer(300);
    add(x + y, equal, container.width);
    add(y, atMost, 80, 250);
    add(x, atMost, 60, 250);
    expectValue(y, 80);
    expectValue(x, 220);
}

TEST_F(LinearSolverTest, TheFirstOfEqualsStaysFirstWhenOthersComeAndGo) {
    const auto first = add(x, equal, 10, 250);
    add(x, equal, 20, 250);
    EXPECT_TRUE(solver.removeConstraint(first));
    expectValue(x, 20);
    add(x, equal, 10, 250);
    expectValue(x, 20);
}

TEST_F(LinearSolverTest, AMajorityOfEqualsWins) {
    add(x, equal, 10, 250);
    add(x, equal, 20, 250);
    add(x, equal, 20, 250);
    expectValue(x, 20);
}

TEST_F(LinearSolverTest, ALowerPriorityDecidesBetweenEqualSums) {
    add(x, equal, 10, 250);
    add(x, equal, 20, 250);
    add(x, equal, 17, 1);
    expectValue(x, 17);
}

TEST_F(LinearSolverTest, HuggingAndCompressionDecideWhoGivesWay) {
    const auto addLabel = [this](const LinearVariable& width, double natural, double hugging) {
        add(width, atMost, natural, hugging);
        add(width, atLeast, natural, 750);
    };
    const auto wide = solver.addConstraint({x + y, equal, 300});
    addLabel(x, 100, 250);
    addLabel(y, 80, 251);
    expectValue(x, 220);
    expectValue(y, 80);
    ASSERT_TRUE(wide);
    EXPECT_TRUE(solver.removeConstraint(*wide));
    expectValue(x, 100);
    add(x + y, equal, 150);
    expectValue(x, 100);
    expectValue(y, 50);
}

TEST_F(LinearSolverTest, WhatNothingDecidesIsAsNearToZeroAsMayBe) {
    add(x, atLeast, -5);
    add(y, atLeast, 7);
    add(z, atMost, -3);
    expectValue(x, 0);
    expectValue(y, 7);
    expectValue(z, -3);
}

TEST_F(LinearSolverTest, AContradictionIsRefusedAndChangesNothing) {
    add(x, equal, 10);
    add(y, equal, x + 5);
    add(z, equal, 3, 750);
    expectRefused(y, equal, 16);
    expectRefused(x + y, atMost, 24.9);
    expectRefused(x, atLeast, 10.01);
    expectValue(x, 10);
    expectValue(y, 15);
    expectValue(z, 3);
    add(z, atLeast, y);
    expectValue(z, 15);
}

TEST_F(LinearSolverTest, ARefusedConstraintLeavesNothingBehind) {
    const auto id = add(x, equal, 10);
    expectRefused(x + y - y, equal, 11);
    expectRefused(0, equal, 1);
    expectRefused(0, atLeast, 1);
    EXPECT_TRUE(solver.removeConstraint(id));
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverTest, AChainOfLimitsThatCannotHoldIsRefused) {
    add(x, atLeast, 10);
    add(y, atLeast, x + 10);
    add(z, atLeast, y + 10);
    expectRefused(z, atMost, 29);
    expectValue(z, 30);
    add(z, atMost, 30);
    expectValue(z, 30);
}

TEST_F(LinearSolverTest, RedundantRequiredConstraintsComeAndGo) {
    const auto first = add(x, equal, 10);
    const auto second = add(2 * x, equal, 20);
    add(y, equal, 2 * x);
    const auto third = add(x + y, equal, 30);
    EXPECT_TRUE(solver.removeConstraint(first));
    expectValue(y, 20);
    EXPECT_TRUE(solver.removeConstraint(second));
    expectValue(x, 10);
    expectValue(y, 20);
    EXPECT_TRUE(solver.removeConstraint(third));
    expectValue(y, 0);
}

TEST_F(LinearSolverTest, RemovingRestores) {
    add(x, equal, 10, 250);
    add(y, equal, x + 1);
    const auto id = add(y, atLeast, 40);
    expectValue(x, 39);
    EXPECT_TRUE(solver.removeConstraint(id));
    expectValue(x, 10);
    expectValue(y, 11);
}

TEST_F(LinearSolverTest, AConstraintIsRemovedOnce) {
    const auto id = add(x, equal, 10);
    EXPECT_TRUE(solver.removeConstraint(id));
    const auto again = solver.removeConstraint(id);
    ASSERT_FALSE(again);
    EXPECT_EQ(again.error(), LinearSolverError::UnknownConstraint);
}

TEST_F(LinearSolverTest, TheSameConstraintTwiceIsTwo) {
    const auto first = add(x, equal, 10);
    const auto second = add(x, equal, 10);
    EXPECT_NE(first, second);
    EXPECT_TRUE(solver.removeConstraint(first));
    expectValue(x, 10);
    EXPECT_TRUE(solver.removeConstraint(second));
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverTest, AWidthThatChangesMovesWhatHangsOnIt) {
    const Span view;
    add(container.left, equal, 0);
    add(view.left, equal, container.left + 16);
    add(view.right(), equal, container.right() - 16, 750);
    add(view.width, atMost, 500);
    for (const double width : {320.0, 1024.0, 375.0, 0.0, 532.0, 533.0}) {
        const auto held = add(container.width, equal, width, 999);
        expectValue(container.width, width);
        expectValue(view.width, std::min(width - 32, 500.0));
        EXPECT_TRUE(solver.removeConstraint(held));
    }
}

TEST_F(LinearSolverTest, NumbersThatAreNoneAreErrors) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(solver.addConstraint({x, equal, infinity}).error(), LinearSolverError::NotFinite);
    EXPECT_EQ(solver.addConstraint({none * x, equal, 1}).error(), LinearSolverError::NotFinite);
    EXPECT_EQ(solver.addConstraint({x, equal, 1, none}).error(), LinearSolverError::NotFinite);
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverTest, FactorsThatRoundingLeftCountAsNone) {
    add(x, equal, 10);
    add(y, equal, (0.1 + 0.2 - 0.3) * x + 4);
    expectValue(y, 4);
    expectRefused((0.1 + 0.2 - 0.3) * z, equal, 4);
}

TEST_F(LinearSolverTest, RoundingOfRequiredConstraintsIsNoContradiction) {
    add(3 * x, equal, 1000);
    add(y, equal, (1.0 / 7) * x);
    add(21 * y, equal, 1000);
    expectValue(y, 1000.0 / 21);
}

TEST_F(LinearSolverTest, LimitsBeyondAllSizesDoNoHarm) {
    add(x, atMost, 1e300);
    add(x, atLeast, -1e300);
    add(x, equal, 12, 250);
    expectValue(x, 12);
}

TEST_F(LinearSolverTest, IsEmptyOnceEverythingIsRemoved) {
    const auto first = add(x + y, equal, 10);
    const auto second = add(x, atLeast, 20);
    const auto third = add(z, equal, x - y, 750);
    EXPECT_FALSE(solver.isEmpty());
    EXPECT_TRUE(solver.removeConstraint(second));
    EXPECT_TRUE(solver.removeConstraint(first));
    EXPECT_TRUE(solver.removeConstraint(third));
    EXPECT_TRUE(solver.isEmpty());
}
