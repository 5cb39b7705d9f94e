#include "AudioToolbox/AudioServices.h"

#include "SystemSounds.h"

void AudioServicesPlaySystemSound(std::uint32_t sound) {
    SystemSounds::shared().play(sound);
}
