#include "SystemSounds.h"

#include <utility>

SystemSounds& SystemSounds::shared() {
    static SystemSounds sounds;
    return sounds;
}

std::vector<std::uint32_t> SystemSounds::take() {
    return std::exchange(played_, {});
}
