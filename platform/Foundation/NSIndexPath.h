#pragma once

#include <cstdint>

/// Names a row of a table: its section, and its place there.
struct NSIndexPath {
    std::int64_t section = 0;
    std::int64_t row = 0;

    friend bool operator==(const NSIndexPath&, const NSIndexPath&) = default;
};
