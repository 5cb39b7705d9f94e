#include "ColorCode.h"

#include <QString>
#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

constexpr std::size_t shortLength = 3; ///< of "rgb"
constexpr std::size_t longLength = 6;  ///< of "rrggbb"

bool isHex(std::string_view text) {
    return std::ranges::all_of(text, [](unsigned char digit) { return std::isxdigit(digit) != 0; });
}

double part(const std::string& digits) {
    constexpr int hex = 16;
    constexpr double greatest = 255;
    return std::stoi(digits, nullptr, hex) / greatest;
}

/// Of digits for all four parts, one or two for each.
ColorComponents colorFromDigits(std::string_view digits) {
    const auto width = digits.size() / 4;
    const auto at = [digits, width](std::size_t index) {
        const std::string own(digits.substr(index * width, width));
        return part(width == 1 ? own + own : own);
    };
    return {.red = at(0), .green = at(1), .blue = at(2), .alpha = at(3)};
}

std::optional<double> opacityFrom(std::string_view text) {
    bool isNumber = false;
    const auto number =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toDouble(&isNumber);
    return isNumber && number >= 0 && number <= 1 ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<ColorComponents> colorFromCode(std::string_view text) {
    if (text.starts_with('#'))
        text.remove_prefix(1);
    const auto colon = text.find(':');
    const auto digits = text.substr(0, colon);
    if (!isHex(digits))
        return std::nullopt;
    if (colon != std::string_view::npos) {
        const auto opacity = opacityFrom(text.substr(colon + 1));
        if (digits.size() != longLength || !opacity)
            return std::nullopt;
        auto color = colorFromDigits(std::string(digits) + "ff");
        color.alpha = *opacity;
        return color;
    }
    if (digits.size() == shortLength)
        return colorFromDigits(std::string(digits) + "f");
    if (digits.size() == longLength)
        return colorFromDigits(std::string(digits) + "ff");
    if (digits.size() == shortLength + 1 || digits.size() == longLength + 2)
        return colorFromDigits(digits);
    return std::nullopt;
}

std::string codeOfColor(const ColorComponents& color) {
    QString text;
    for (const auto part : {color.red, color.green, color.blue, color.alpha}) {
        constexpr int hex = 16;
        constexpr double greatest = 255;
        const auto number = std::lround(std::clamp(part, 0.0, 1.0) * greatest);
        text += QString::number(number, hex).rightJustified(2, '0');
    }
    return text.toStdString();
}
