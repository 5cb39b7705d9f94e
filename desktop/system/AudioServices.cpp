#include "AudioToolbox/AudioServices.h"

#include "Device.h"
#include "system/SystemSounds.h"

void AudioServicesPlaySystemSound(std::uint32_t sound) {
    Device::current().sounds().play(sound);
}
