#include "system/SystemSounds.h"

#include <utility>

std::vector<std::uint32_t> SystemSounds::take() {
    return std::exchange(played_, {});
}
