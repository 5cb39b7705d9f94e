#pragma once

#include <compare>
#include <cstdint>

/// An unknown of linear constraints: an identity, made by whoever needs one and copied freely. Its value is
/// kept by the solver that holds constraints on it. Variables are ordered as they were made.
class LinearVariable {
public:
    /// A variable unlike all others.
    LinearVariable();

    /// Its place in the order of making.
    [[nodiscard]] std::uint64_t number() const { return number_; }

    friend auto operator<=>(const LinearVariable&, const LinearVariable&) = default;

private:
    std::uint64_t number_;
};
