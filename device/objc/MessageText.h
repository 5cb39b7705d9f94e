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
        // By pointers, whose algorithms are the same for texts of every length.
        std::copy_n(literal, size, text.data());
        const char* const end = literal + size;
        const char* const space = std::find(literal + 2, end, ' ');
        std::copy(literal + 2, space, className.data());
        std::copy(space + 1, std::find(space, end, ']'), selector.data());
    }

    [[nodiscard]] consteval bool isForClass() const { return text[0] == '+'; }

    [[nodiscard]] consteval std::size_t parameterCount() const {
        return static_cast<std::size_t>(std::count(text.data(), text.data() + size, ':'));
    }

    std::array<char, size> text{};
    std::array<char, size> className{}; ///< "UIView", then zeros
    std::array<char, size> selector{};  ///< "setFrame:", then zeros
};
