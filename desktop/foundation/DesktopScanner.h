#pragma once

#include "Foundation/NSScanner.h"

#include <string>

/// A text, and how far it has been read. Not for several threads at once.
class DesktopScanner final : public NSScanner {
public:
    explicit DesktopScanner(std::string_view text) : text_(text) {}

    // NSScanner:
    [[nodiscard]] std::optional<std::uint32_t> scanHexInt() override;

private:
    /// Where the next thing that is no white space stands.
    [[nodiscard]] std::size_t nextValue() const;
    /// After "0x" there, if digits follow it.
    [[nodiscard]] std::size_t afterPrefix(std::size_t place) const;

    std::string text_;
    std::size_t place_ = 0;
};
