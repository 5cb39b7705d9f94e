#pragma once

#include "Foundation/NSData.h"
#include "Foundation/NSDate.h"

#include <concepts>
#include <cstdint>
#include <functional>
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

    PropertyList(bool value);

    /// An integer of any type; those above the signed 64-bit range keep their value too.
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    PropertyList(T value)
        : PropertyList(Integer{static_cast<std::uint64_t>(value), std::cmp_less(value, 0)}) {}

    PropertyList(double value);
    PropertyList(std::string value);
    PropertyList(std::string_view value);
    PropertyList(const char* value);
    PropertyList(NSData value);
    PropertyList(NSDate value);
    PropertyList(Array value);
    PropertyList(Dictionary value);

    // Not left to each source that comes by a value, most of which do no more than that.
    PropertyList(const PropertyList& other);
    PropertyList(PropertyList&& other) noexcept;
    PropertyList& operator=(const PropertyList& other);
    PropertyList& operator=(PropertyList&& other) noexcept;
    ~PropertyList();

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

    friend bool operator==(const PropertyList& one, const PropertyList& other);

private:
    /// An integer's lower 64 bits, and whether those are of a negative one.
    struct Integer {
        std::uint64_t bits;
        bool isNegative;
    };

    explicit PropertyList(Integer value);

    std::variant<bool, std::int64_t, std::uint64_t, double, std::string, NSData, NSDate, Array, Dictionary>
        value_;
};
