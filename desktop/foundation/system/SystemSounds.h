#pragma once

#include <cstdint>
#include <vector>

/// The system sounds and taps of the finger that have been played: kept by number for whoever asks. Owned
/// by the device. Main thread only.
class SystemSounds {
public:
    void play(std::uint32_t sound) { played_.push_back(sound); }

    /// The numbers played since the last call, in order.
    [[nodiscard]] std::vector<std::uint32_t> take();

private:
    std::vector<std::uint32_t> played_;
};
