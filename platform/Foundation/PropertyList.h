#pragma once

#include "Foundation/NSData.h"
#include "Foundation/NSDate.h"

#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

/// One value of a property list, and with that of a preference or a row's property: a boolean, an integer, a
/// real, a text, data, a date, an array or a dictionary. "No value" is not one: a value that may be absent is
/// a `std::optional<PropertyList>`.
///
/// Values compare equal when they are of the same kind and hold the same: `true`, `1` and `1.0` all differ.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = std::map<std::string, PropertyList, std::less<>>;

    PropertyList(bool value) : value_(value) {}

    /// An integer of any type; those above the signed 64-bit range keep their value too.
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    PropertyList(T value) {
        if (std::cmp_less_equal(value, std::numeric_limits<std::int64_t>::max()))
            value_ = static_cast<std::int64_t>(value);
        else
            value_ = static_cast<std::uint64_t>(value);
    }

    PropertyList(double value) : value_(value) {}

    PropertyList(std::string value) : value_(std::move(value)) {}

    PropertyList(std::string_view value) : value_(std::string(value)) {}

    PropertyList(const char* value) : value_(std::string(value)) {}

    PropertyList(NSData value) : value_(std::move(value)) {}

    PropertyList(NSDate value) : value_(value) {}

    PropertyList(Array value) : value_(std::move(value)) {}

    PropertyList(Dictionary value) : value_(std::move(value)) {}

    /// The value when it is of that kind, else null: `bool`, `std::int64_t`, `std::uint64_t` (only integers
    /// above the signed range), `double`, `std::string`, `NSData`, `NSDate`, `Array` or `Dictionary`.
    template <class T>
    [[nodiscard]] const T* getIf() const {
        return std::get_if<T>(&value_);
    }

    template <class T>
    [[nodiscard]] T* getIf() {
        return std::get_if<T>(&value_);
    }

    /// Booleans, integers and reals are all numbers.
    [[nodiscard]] bool isNumber() const;

    /// A number is true unless it is 0. A text is true when, after white space, a sign and zeros, it goes on
    /// with Y, y, T, t or a digit. Anything else is false.
    [[nodiscard]] bool boolValue() const;

    /// A number as an integer, cut toward zero and held within the 64-bit range; anything else is 0.
    [[nodiscard]] std::int64_t integerValue() const;

    /// A number as a real; anything else is 0.
    [[nodiscard]] double doubleValue() const;

    /// What "%@" prints: `1` for true, `0.1`, a text as it is, collections over several lines.
    [[nodiscard]] std::string description() const;

    /// Calls `visitor` with the value as the type that it is kept in.
    template <class Visitor>
    [[nodiscard]] decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), value_);
    }

    friend bool operator==(const PropertyList&, const PropertyList&) = default;

private:
    std::variant<bool, std::int64_t, std::uint64_t, double, std::string, NSData, NSDate, Array, Dictionary>
        value_;
};
