#pragma once

#include "LinearExpression.h"

#include <utility>

enum class LinearRelation { LessOrEqual, Equal, GreaterOrEqual };

/// A statement about variables, and how much it counts: `left` stands in `relation` to `right`. A priority of
/// `required` or more has to hold; below that, a higher one counts for more than any number of lower ones.
class LinearConstraint {
public:
    static constexpr double required = 1000;

    LinearConstraint(const LinearExpression& left, LinearRelation relation, const LinearExpression& right,
                     double priority = required)
        : difference_(left - right),
          relation_(relation),
          priority_(priority) {}

    /// What stands in the relation to zero.
    [[nodiscard]] const LinearExpression& difference() const { return difference_; }

    [[nodiscard]] LinearRelation relation() const { return relation_; }

    [[nodiscard]] double priority() const { return priority_; }

    [[nodiscard]] bool isRequired() const { return priority_ >= required; }

private:
    LinearExpression difference_;
    LinearRelation relation_;
    double priority_;
};
