#pragma once

#include "LinearConstraint.h"

#include <optional>
#include <vector>

/// The best values of a few variables under a few constraints, found without a simplex. What counts is linear
/// between the lines where a constraint is met exactly or a variable is zero, so the best place is a corner
/// of those lines: it looks at all corners. A test's measure of the solver.
class VertexSearch {
public:
    /// \param constraints in order of adding
    VertexSearch(std::vector<LinearVariable> variables, std::vector<LinearConstraint> constraints);

    /// The values in the order of the variables; nothing when the required constraints contradict each other.
    [[nodiscard]] std::optional<std::vector<double>> best() const;

private:
    using Point = std::vector<double>;
    /// Factors of the variables, and the constant.
    using Line = std::vector<double>;

    [[nodiscard]] Line lineOf(const LinearExpression& expression) const;
    [[nodiscard]] std::optional<Point> crossing(std::vector<Line> lines) const;
    [[nodiscard]] double error(std::size_t constraint, const Point& point) const;
    [[nodiscard]] bool satisfiesRequired(const Point& point) const;
    [[nodiscard]] std::vector<double> costs(const Point& point) const;

    std::vector<LinearVariable> variables_;
    std::vector<LinearConstraint> constraints_;
    std::vector<std::size_t> bestFirst_; ///< constraints that are not required, by priority and then by age
    std::vector<Line> lines_;            ///< of the constraints, then of the variables
};
