#include "Foundation/PropertyList.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <type_traits>

namespace {

constexpr std::size_t indentationStep = 4;

/// The shortest decimal text that reads back as the same number.
std::string describeReal(double value) {
    std::array<char, 64> text{};
    for (const int digits : {15, 16, 17}) {
        std::snprintf(text.data(), text.size(), "%.*g", digits, value);
        if (std::strtod(text.data(), nullptr) == value)
            break;
    }
    std::string result(text.data());
    std::ranges::replace(result, ',', '.'); // some locales of the host write the decimal point so
    return result;
}

/// A text inside a collection: as it is when it is a plain word, else in quotes.
std::string quoted(const std::string& text) {
    const bool isPlain = !text.empty() && std::ranges::all_of(text, [](char character) {
        return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_' ||
               character == '/' || character == '.' || character == '$' || character == ':';
    });
    if (isPlain)
        return text;
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            result += '\\';
        if (character == '\n')
            result += "\\n";
        else
            result += character;
    }
    return result + "\"";
}

std::string describe(const PropertyList& value, std::size_t indentation);

// As on the platform, a collection's opening bracket is indented too, also when it follows a key.

std::string describe(const PropertyList::Array& array, std::size_t indentation) {
    const std::string inner(indentation + indentationStep, ' ');
    std::string text = std::string(indentation, ' ') + "(\n";
    for (std::size_t i = 0; i < array.size(); ++i) {
        text += inner + describe(array[i], indentation + indentationStep);
        text += i + 1 < array.size() ? ",\n" : "\n";
    }
    return text + std::string(indentation, ' ') + ")";
}

std::string describe(const PropertyList::Dictionary& dictionary, std::size_t indentation) {
    const std::string inner(indentation + indentationStep, ' ');
    std::string text = std::string(indentation, ' ') + "{\n";
    for (const auto& [key, value] : dictionary)
        text += inner + quoted(key) + " = " + describe(value, indentation + indentationStep) + ";\n";
    return text + std::string(indentation, ' ') + "}";
}

std::string describe(const PropertyList& value, std::size_t indentation) {
    return value.visit([&](const auto& held) -> std::string {
        using Held = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::string>)
            return quoted(held);
        else if constexpr (std::is_same_v<Held, NSDate>)
            return quoted(held.description());
        else if constexpr (std::is_same_v<Held, NSData>)
            return held.description();
        else if constexpr (std::is_same_v<Held, double>)
            return describeReal(held);
        else if constexpr (std::is_arithmetic_v<Held>)
            return std::to_string(held);
        else
            return describe(held, indentation);
    });
}

bool textIsTrue(std::string_view text) {
    const auto skipWhile = [&text](auto isSkipped) {
        while (!text.empty() && isSkipped(text.front()))
            text.remove_prefix(1);
    };
    skipWhile([](char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; });
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    skipWhile([](char character) { return character == '0'; });
    return !text.empty() && std::string_view("YyTt123456789").contains(text.front());
}

std::int64_t cutToInteger(double value) {
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

/// Calls `forNumber` with the number that the value holds, as the type that it is kept in.
template <class Answer, class Visitor>
Answer ifNumber(const PropertyList& value, Answer otherwise, Visitor forNumber) {
    return value.visit([&](const auto& held) -> Answer {
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(held)>>)
            return forNumber(held);
        else
            return otherwise;
    });
}

} // namespace

PropertyList::PropertyList(bool value) : value_(value) {}

PropertyList::PropertyList(double value) : value_(value) {}

PropertyList::PropertyList(std::string value) : value_(std::move(value)) {}

PropertyList::PropertyList(std::string_view value) : value_(std::string(value)) {}

PropertyList::PropertyList(const char* value) : value_(std::string(value)) {}

PropertyList::PropertyList(NSData value) : value_(std::move(value)) {}

PropertyList::PropertyList(NSDate value) : value_(value) {}

PropertyList::PropertyList(Array value) : value_(std::move(value)) {}

PropertyList::PropertyList(Dictionary value) : value_(std::move(value)) {}

PropertyList::PropertyList(Integer value) {
    const auto isBeyondSigned =
        !value.isNegative && std::cmp_greater(value.bits, std::numeric_limits<std::int64_t>::max());
    if (isBeyondSigned)
        value_ = value.bits;
    else
        value_ = static_cast<std::int64_t>(value.bits);
}

PropertyList::PropertyList(const PropertyList& other) = default;

PropertyList::PropertyList(PropertyList&& other) noexcept = default;

PropertyList& PropertyList::operator=(const PropertyList& other) = default;

PropertyList& PropertyList::operator=(PropertyList&& other) noexcept = default;

PropertyList::~PropertyList() = default;

bool operator==(const PropertyList& one, const PropertyList& other) {
    return one.value_ == other.value_;
}

bool PropertyList::isNumber() const {
    return ifNumber(*this, false, [](auto) { return true; });
}

bool PropertyList::boolValue() const {
    if (const auto* const text = getIf<std::string>())
        return textIsTrue(*text);
    return ifNumber(*this, false, [](auto number) { return number != decltype(number){}; });
}

std::int64_t PropertyList::integerValue() const {
    return ifNumber(*this, std::int64_t{0}, [](auto number) -> std::int64_t {
        if constexpr (std::is_same_v<decltype(number), double>)
            return cutToInteger(number);
        else if constexpr (std::is_same_v<decltype(number), std::uint64_t>)
            return std::numeric_limits<std::int64_t>::max();
        else
            return number;
    });
}

double PropertyList::doubleValue() const {
    return ifNumber(*this, 0.0, [](auto number) { return static_cast<double>(number); });
}

std::string PropertyList::description() const {
    if (const auto* const text = getIf<std::string>())
        return *text;
    if (const auto* const date = getIf<NSDate>())
        return date->description();
    return describe(*this, 0);
}
