#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

/// A message written out as a template argument, with the class that declares it: "-[UIView setFrame:]" to an
/// object, "+[UIColor clearColor]" to the class.
template <std::size_t size>
struct MessageText {
    // NOLINTNEXTLINE(*-avoid-c-arrays): that is what a literal is
    consteval MessageText(const char (&literal)[size]) {
        std::copy_n(literal, size, text.begin());
        std::copy_n(literal, size, className.begin());
        const auto space = std::ranges::find(className, ' ');
        std::ranges::copy(std::ranges::subrange(space + 1, className.end()), selector.begin());
        std::ranges::fill(std::ranges::subrange(space, className.end()), '\0');
        std::ranges::copy(std::ranges::subrange(className.begin() + 2, className.end()), className.begin());
        std::ranges::replace(selector, ']', '\0');
    }

    [[nodiscard]] consteval bool isForClass() const { return text[0] == '+'; }

    [[nodiscard]] consteval std::size_t parameterCount() const {
        return static_cast<std::size_t>(std::ranges::count(text, ':'));
    }

    std::array<char, size> text{};
    std::array<char, size> className{}; ///< "UIView", then zeros
    std::array<char, size> selector{};  ///< "setFrame:", then zeros
};
