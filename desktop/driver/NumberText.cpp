#include "NumberText.h"

#include <charconv>
#include <cmath>

std::optional<double> numberFromText(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<int> countFromText(std::string_view text) {
    int count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size() || count < 1)
        return std::nullopt;
    return count;
}
