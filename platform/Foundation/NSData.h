#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A run of bytes.
struct NSData {
    std::vector<std::byte> bytes;

    /// A copy of the bytes of `text`.
    [[nodiscard]] static NSData dataWithBytes(std::string_view text);

    /// The whole content of a file; nothing when there is no file at the path or it cannot be read.
    [[nodiscard]] static std::optional<NSData> dataWithContentsOfFile(std::string_view path);

    /// The same bytes as text, unexamined; valid for as long as `bytes` is unchanged.
    [[nodiscard]] std::string_view view() const;

    /// "{length = 3, bytes = 0x0a0b0c}"; beyond 24 bytes the middle is left out.
    [[nodiscard]] std::string description() const;

    friend bool operator==(const NSData&, const NSData&) = default;
};
