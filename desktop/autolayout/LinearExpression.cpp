#include "LinearExpression.h"

#include <algorithm>
#include <cmath>

LinearExpression& LinearExpression::operator+=(const LinearExpression& other) {
    add(other, 1);
    return *this;
}

LinearExpression& LinearExpression::operator-=(const LinearExpression& other) {
    add(other, -1);
    return *this;
}

LinearExpression& LinearExpression::operator*=(double factor) {
    constant_ *= factor;
    for (auto& term : terms_)
        term.coefficient *= factor;
    return *this;
}

bool LinearExpression::isFinite() const {
    return std::isfinite(constant_) &&
           std::ranges::all_of(terms_, [](const Term& term) { return std::isfinite(term.coefficient); });
}

void LinearExpression::add(const LinearExpression& other, double factor) {
    constant_ += factor * other.constant_;
    for (const auto& term : other.terms_) {
        const auto own = std::ranges::find(terms_, term.variable, &Term::variable);
        if (own == terms_.end())
            terms_.push_back({term.variable, factor * term.coefficient});
        else
            own->coefficient += factor * term.coefficient;
    }
}

LinearExpression operator+(LinearExpression left, const LinearExpression& right) {
    left += right;
    return left;
}

LinearExpression operator-(LinearExpression left, const LinearExpression& right) {
    left -= right;
    return left;
}

LinearExpression operator*(double factor, LinearExpression expression) {
    expression *= factor;
    return expression;
}
