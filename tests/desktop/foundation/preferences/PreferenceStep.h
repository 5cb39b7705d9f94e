#pragma once

#include "Foundation/NSData.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

/// One of a sequence of writes to a preference domain, each known from its number alone: what the writing
/// program does, and what a test expects of the file.
struct PreferenceStep {
    explicit PreferenceStep(std::uint64_t stepNumber);

    /// The checksum of the state with that number and that blob.
    [[nodiscard]] static std::string checksumOf(std::uint64_t number, std::string_view blob);

    std::uint64_t number;
    bool removesDomainFirst;
    std::string blob;
    std::string checksum;
    std::string extraKey;                  ///< a key that is set or removed besides
    std::optional<std::string> extraValue; ///< nothing: removed
};
