#pragma once

#include "Foundation/NSDate.h"
#include "Foundation/PropertyList.h"
#include "ObjectiveC/NSObject.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

/// What stands for "%@" when the value is absent.
inline constexpr std::string_view absentValueText = "(null)";

/// The text that "%@" prints for a value: a text as it is, anything else by its `description`.
inline std::string formatted(std::string_view text) {
    return std::string(text);
}

template <std::same_as<PropertyList> T> // and nothing that converts to one
std::string formatted(const T& value) {
    return value.description();
}

inline std::string formatted(const NSDate& date) {
    return date.description();
}

template <std::derived_from<NSObject> T>
std::string formatted(const Ref<T>& object) {
    return object ? object->description() : std::string(absentValueText);
}

template <class T>
std::string formatted(const std::optional<T>& value) {
    return value ? formatted(*value) : std::string(absentValueText);
}

/// Replaces each "%@" by the argument in its place and "%%" by "%".
[[nodiscard]] std::string replacePlaceholders(std::string_view format,
                                              std::span<const std::string> arguments);

/// Answers how many "%@" a format holds, or nothing when it holds any other conversion.
[[nodiscard]] constexpr std::optional<std::size_t> placeholderCount(std::string_view format) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%')
            continue;
        const auto conversion = format.substr(i + 1, 1);
        if (conversion != "@" && conversion != "%")
            return std::nullopt;
        count += conversion == "@" ? 1U : 0U;
        ++i;
    }
    return count;
}

/// A format for exactly these arguments. A literal with another number of "%@", or with any conversion
/// besides
/// "%@" and "%%", does not compile.
template <class... Arguments>
class FormatString {
public:
    consteval FormatString(const char* format) : format_(format) {
        if (placeholderCount(format_) != sizeof...(Arguments))
            formatDoesNotFitItsArguments();
    }

    [[nodiscard]] constexpr std::string_view view() const { return format_; }

private:
    static void formatDoesNotFitItsArguments(); // not constant: to call it is the compile error

    std::string_view format_;
};

/// The format with each "%@" replaced by its argument, as the platform prints it; "(null)" for an absent one.
template <class... Arguments>
[[nodiscard]] std::string stringWithFormat(FormatString<std::type_identity_t<Arguments>...> format,
                                           const Arguments&... arguments) {
    const std::array<std::string, sizeof...(Arguments)> texts{formatted(arguments)...};
    return replacePlaceholders(format.view(), texts);
}
