#include "LinearSolver.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr std::size_t rowCount = 400;
constexpr double rowGap = 8;

struct Row {
    LinearVariable left;
    LinearVariable top;
    LinearVariable width;
    LinearVariable height;
};

/// Views below each other in a container of some width, each as high as its content asks for.
class LinearSolverLargeTest : public testing::Test {
protected:
    LinearSolverLargeTest() : rows(rowCount) {
        add(width, LinearRelation::Equal, 390, 999);
        for (std::size_t i = 0; i < rowCount; ++i)
            addRow(i);
    }

    static double contentHeight(std::size_t i) { return static_cast<double>(20 + i % 7); }

    void add(const LinearExpression& left, LinearRelation relation, const LinearExpression& right,
             double priority = LinearConstraint::required) {
        const auto id = solver.addConstraint({left, relation, right, priority});
        ASSERT_TRUE(id);
        constraints.push_back(*id);
    }

    void addRow(std::size_t i) {
        const auto& row = rows[i];
        const auto above = i == 0 ? LinearExpression(0) : rows[i - 1].top + rows[i - 1].height + rowGap;
        add(row.top, LinearRelation::Equal, above);
        add(row.left, LinearRelation::Equal, 16);
        add(row.left + row.width, LinearRelation::Equal, width - 16);
        add(row.height, LinearRelation::GreaterOrEqual, contentHeight(i), 750);
        add(row.height, LinearRelation::LessOrEqual, contentHeight(i), 250);
    }

    void expectRows(double rowWidth) const {
        double top = 0;
        for (std::size_t i = 0; i < rowCount; ++i) {
            ASSERT_NEAR(solver.value(rows[i].top), top, 1e-6);
            ASSERT_NEAR(solver.value(rows[i].width), rowWidth, 1e-6);
            top += contentHeight(i) + rowGap;
        }
    }

    LinearSolver solver;
    LinearVariable width;
    std::vector<Row> rows;
    std::vector<LinearSolver::ConstraintId> constraints;
};

} // namespace

TEST_F(LinearSolverLargeTest, FourHundredRowsFollowAWidth) {
    expectRows(358);
    auto held = constraints.front();
    for (int step = 0; step < 10; ++step) {
        ASSERT_TRUE(solver.removeConstraint(held));
        const auto next = solver.addConstraint({width, LinearRelation::Equal, 400.0 + step, 999});
        ASSERT_TRUE(next);
        held = *next;
    }
    expectRows(377);
}

TEST_F(LinearSolverLargeTest, FourHundredRowsComeAndGo) {
    for (const auto constraint : constraints)
        ASSERT_TRUE(solver.removeConstraint(constraint));
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverLargeTest, FourHundredRowsGoInReverse) {
    for (; !constraints.empty(); constraints.pop_back())
        ASSERT_TRUE(solver.removeConstraint(constraints.back()));
    EXPECT_TRUE(solver.isEmpty());
}

TEST_F(LinearSolverLargeTest, ABottomThatIsTooNearTakesHeightWhereItCountsLeast) {
    double natural = -rowGap;
    for (std::size_t i = 0; i < rowCount; ++i)
        natural += contentHeight(i) + rowGap;
    const auto& last = rows.back();
    add(last.height, LinearRelation::GreaterOrEqual, 15, 751);
    add(last.top + last.height, LinearRelation::Equal, natural - 20);
    EXPECT_NEAR(solver.value(last.height), 15, 1e-6);
    const double taken = 20 - (contentHeight(rowCount - 1) - 15);
    EXPECT_NEAR(solver.value(rows[rowCount - 2].height), contentHeight(rowCount - 2) - taken, 1e-6)
        << "the last of its equals to ask";
    for (std::size_t i = 0; i + 2 < rowCount; ++i)
        ASSERT_NEAR(solver.value(rows[i].height), contentHeight(i), 1e-6);
}
