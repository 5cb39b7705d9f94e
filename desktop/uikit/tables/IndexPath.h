#pragma once

#include <compare>
#include <cstddef>

/// A row of a table: its section, and its place there.
struct IndexPath {
    std::size_t section = 0;
    std::size_t row = 0;

    friend auto operator<=>(const IndexPath&, const IndexPath&) = default;
};
