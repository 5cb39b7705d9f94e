#include "VertexSearch.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

constexpr double tolerance = 1e-6;

/// Whether the first is less at the first place where they differ.
bool isLess(const std::vector<double>& a, const std::vector<double>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > tolerance)
            return a[i] < b[i];
    }
    return false;
}

} // namespace

VertexSearch::VertexSearch(std::vector<LinearVariable> variables, std::vector<LinearConstraint> constraints)
    : variables_(std::move(variables)),
      constraints_(std::move(constraints)) {
    for (std::size_t i = 0; i < constraints_.size(); ++i) {
        lines_.push_back(lineOf(constraints_[i].difference()));
        if (!constraints_[i].isRequired())
            bestFirst_.push_back(i);
    }
    for (const auto& variable : variables_)
        lines_.push_back(lineOf(variable));
    std::ranges::sort(bestFirst_, {},
                      [this](std::size_t i) { return std::pair(-constraints_[i].priority(), i); });
}

std::optional<std::vector<double>> VertexSearch::best() const {
    std::optional<Point> best;
    std::vector<double> bestCosts;
    std::vector<int> chosen(lines_.size());
    std::fill_n(chosen.begin(), variables_.size(), 1);
    do {
        std::vector<Line> lines;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            if (chosen[i] != 0)
                lines.push_back(lines_[i]);
        }
        const auto point = crossing(std::move(lines));
        if (!point || !satisfiesRequired(*point))
            continue;
        auto pointCosts = costs(*point);
        if (!best || isLess(pointCosts, bestCosts)) {
            best = point;
            bestCosts = std::move(pointCosts);
        }
    } while (std::ranges::prev_permutation(chosen).found);
    return best;
}

VertexSearch::Line VertexSearch::lineOf(const LinearExpression& expression) const {
    Line line(variables_.size() + 1);
    for (const auto& term : expression.terms())
        line[static_cast<std::size_t>(std::ranges::find(variables_, term.variable) - variables_.begin())] =
            term.coefficient;
    line.back() = expression.constant();
    return line;
}

std::optional<VertexSearch::Point> VertexSearch::crossing(std::vector<Line> lines) const {
    const auto count = lines.size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto pivot =
            std::max_element(lines.begin() + static_cast<std::ptrdiff_t>(i), lines.end(),
                             [i](const Line& a, const Line& b) { return std::abs(a[i]) < std::abs(b[i]); });
        std::swap(lines[i], *pivot);
        if (std::abs(lines[i][i]) < tolerance)
            return std::nullopt;
        for (std::size_t j = 0; j < count; ++j) {
            const double factor = j == i ? 0 : lines[j][i] / lines[i][i];
            for (std::size_t k = 0; k <= count; ++k)
                lines[j][k] -= factor * lines[i][k];
        }
    }
    Point point(count);
    for (std::size_t i = 0; i < count; ++i)
        point[i] = -lines[i][count] / lines[i][i];
    return point;
}

double VertexSearch::error(std::size_t constraint, const Point& point) const {
    const auto& line = lines_[constraint];
    const double value = std::inner_product(point.begin(), point.end(), line.begin(), line.back());
    switch (constraints_[constraint].relation()) {
    case LinearRelation::LessOrEqual:
        return std::max(value, 0.0);
    case LinearRelation::Equal:
        return std::abs(value);
    case LinearRelation::GreaterOrEqual:
        break;
    }
    return std::max(-value, 0.0);
}

bool VertexSearch::satisfiesRequired(const Point& point) const {
    for (std::size_t i = 0; i < constraints_.size(); ++i) {
        if (constraints_[i].isRequired() && error(i, point) > tolerance)
            return false;
    }
    return true;
}

std::vector<double> VertexSearch::costs(const Point& point) const {
    std::vector<double> sums;
    std::vector<double> singles;
    for (std::size_t i = 0; i < bestFirst_.size(); ++i) {
        const auto samePriority = [&](std::size_t a, std::size_t b) {
            return constraints_[a].priority() == constraints_[b].priority();
        };
        if (i == 0 || !samePriority(bestFirst_[i - 1], bestFirst_[i]))
            sums.push_back(0);
        singles.push_back(error(bestFirst_[i], point));
        sums.back() += singles.back();
    }
    sums.insert(sums.end(), singles.begin(), singles.end());
    for (const double value : point)
        sums.push_back(std::abs(value));
    return sums;
}
