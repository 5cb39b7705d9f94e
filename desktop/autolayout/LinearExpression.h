#pragma once

#include "LinearVariable.h"

#include <vector>

/// A sum of variables, each with a factor, and a constant. Numbers and variables turn into expressions by
/// themselves, so that `2 * left + width - 16` is one. Each variable has one term, in order of first mention.
class LinearExpression {
public:
    struct Term {
        LinearVariable variable;
        double coefficient;
    };

    LinearExpression(double constant = 0) : constant_(constant) {}

    LinearExpression(const LinearVariable& variable) : terms_{{variable, 1}} {}

    LinearExpression& operator+=(const LinearExpression& other);
    LinearExpression& operator-=(const LinearExpression& other);
    LinearExpression& operator*=(double factor);

    [[nodiscard]] const std::vector<Term>& terms() const { return terms_; }

    [[nodiscard]] double constant() const { return constant_; }

    /// Whether no factor is infinite or not a number, and the constant neither.
    [[nodiscard]] bool isFinite() const;

private:
    void add(const LinearExpression& other, double factor);

    std::vector<Term> terms_;
    double constant_ = 0;
};

[[nodiscard]] LinearExpression operator+(LinearExpression left, const LinearExpression& right);
[[nodiscard]] LinearExpression operator-(LinearExpression left, const LinearExpression& right);
[[nodiscard]] LinearExpression operator*(double factor, LinearExpression expression);
