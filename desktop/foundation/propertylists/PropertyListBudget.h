#pragma once

#include <cstddef>

/// How much one property list may hold, and the count of it. Each value and each key weighs something by
/// itself, and text and data their bytes besides, so that no small file can grow into a huge tree.
class PropertyListBudget {
public:
    /// Arrays and dictionaries within each other.
    static constexpr std::size_t maximumNesting = 128;
    static constexpr std::size_t maximumWeight = std::size_t{64} << 20U;
    static constexpr std::size_t weightOfValue = 64;
    /// Bytes of a file.
    static constexpr std::size_t maximumFileSize = std::size_t{256} << 20U;

    /// \returns false when that is more than what is left
    [[nodiscard]] bool take(std::size_t weight) {
        if (weight > left_)
            return false;
        left_ -= weight;
        return true;
    }

private:
    std::size_t left_ = maximumWeight;
};
