#include "PixelRows.h"

#include <cstddef>

void PixelRows::mix(std::span<const Fine> first, std::span<const Fine> second, int share,
                    std::span<std::uint8_t> mixed) {
    constexpr int whole = fineSteps * fullShare;
    const int rest = fullShare - share;
    for (std::size_t index = 0; index < mixed.size(); ++index)
        mixed[index] =
            static_cast<std::uint8_t>((first[index] * rest + second[index] * share + whole / 2) / whole);
}
