#pragma once

#include <cstdint>

/// Plays one of the system's short sounds or taps of the finger, by number. Returns at once.
extern "C" void AudioServicesPlaySystemSound(std::uint32_t sound);
