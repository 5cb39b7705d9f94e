#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <memory>

/// A value of libplist with all that is in it, owned.
struct PlistDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};

using PlistNode = std::unique_ptr<void, PlistDeleter>;

/// A date or an integer as a binary property list writes it. That form is whole where libplist's own calls
/// are not: they cut dates to 32 bits of seconds, and do not tell unsigned integers from negative ones.
struct PlistScalar {
    static constexpr std::uint8_t unsignedMarker = 0x14; ///< an integer of 16 bytes, the upper 8 are 0
    static constexpr std::uint8_t dateMarker = 0x33;

    /// What a node holds. \pre it is a date or an integer
    [[nodiscard]] static PlistScalar ofNode(plist_t node);

    [[nodiscard]] PlistNode makeNode() const;

    std::uint8_t marker;
    std::uint64_t bits;
};
