#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Runtime.h"

#include <algorithm>
#include <array>
#include <string_view>

/// How Objective-C writes a type down. Specialised for each type that crosses the border.
template <class Raw>
inline constexpr std::string_view encodingOf = {};

template <>
inline constexpr std::string_view encodingOf<void> = "v";
template <>
inline constexpr std::string_view encodingOf<bool> = "B";
template <>
inline constexpr std::string_view encodingOf<unsigned char> = "C"; // GNU's BOOL
template <>
inline constexpr std::string_view encodingOf<std::uint32_t> = "I";
template <>
inline constexpr std::string_view encodingOf<std::uint32_t*> = "^I";
template <>
inline constexpr std::string_view encodingOf<std::int64_t> = "q";
template <>
inline constexpr std::string_view encodingOf<std::uint64_t> = "Q";
template <>
inline constexpr std::string_view encodingOf<float> = "f";
template <>
inline constexpr std::string_view encodingOf<double> = "d";
template <>
inline constexpr std::string_view encodingOf<id> = "@";
template <>
inline constexpr std::string_view encodingOf<objc_class*> = "#";
template <>
inline constexpr std::string_view encodingOf<SEL> = ":";
template <>
inline constexpr std::string_view encodingOf<const char*> = "r*";
template <>
inline constexpr std::string_view encodingOf<void*> = "^v";
template <>
inline constexpr std::string_view encodingOf<const void*> = "r^v";
template <>
inline constexpr std::string_view encodingOf<id*> = "^@";
template <>
inline constexpr std::string_view encodingOf<CGPoint> = "{CGPoint=dd}";
template <>
inline constexpr std::string_view encodingOf<CGSize> = "{CGSize=dd}";
template <>
inline constexpr std::string_view encodingOf<CGRect> = "{CGRect={CGPoint=dd}{CGSize=dd}}";
template <>
inline constexpr std::string_view encodingOf<UIEdgeInsets> = "{UIEdgeInsets=dddd}";

/// A block, as it is passed to the frameworks.
struct BlockObject;
using BlockRef = const BlockObject*;

template <>
inline constexpr std::string_view encodingOf<BlockRef> = "@?";

/// The types of a whole method: its result, the two that every method has, and its parameters; ended by zero.
template <class RawResult, class... RawParameters>
inline constexpr auto methodEncoding = [] {
    static_assert(!encodingOf<RawResult>.empty() && (!encodingOf<RawParameters>.empty() && ...),
                  "a type of the method has no encoding");
    constexpr std::string_view everyMethodHas = "@:";
    constexpr auto length =
        (encodingOf<RawResult>.size() + ... + encodingOf<RawParameters>.size()) + everyMethodHas.size();
    std::array<char, length + 1> types{};
    auto* end = types.data();
    for (const auto part : {encodingOf<RawResult>, everyMethodHas, encodingOf<RawParameters>...})
        end = std::ranges::copy(part, end).out;
    return types;
}();
