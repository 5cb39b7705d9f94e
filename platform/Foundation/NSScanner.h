#pragma once

#include "ObjectiveC/NSObject.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// Reads values from a text, one after the other. White space before a value is skipped.
class NSScanner : public NSObject {
public:
    [[nodiscard]] static Ref<NSScanner> scannerWithString(std::string_view text);

    /// Reads hexadecimal digits of either case, with or without "0x" before them, up to what is none. A
    /// number that is too large is the largest.
    /// \returns nothing, and stays where it is, when no digit comes next
    [[nodiscard]] virtual std::optional<std::uint32_t> scanHexInt() = 0;
};
