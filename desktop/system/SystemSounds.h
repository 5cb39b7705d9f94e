#pragma once

#include <cstdint>
#include <vector>

/// The system sounds and taps of the finger that have been played: kept by number for whoever asks. One for
/// the process. Main thread only.
class SystemSounds {
public:
    [[nodiscard]] static SystemSounds& shared();

    void play(std::uint32_t sound) { played_.push_back(sound); }

    /// The numbers played since the last call, in order.
    [[nodiscard]] std::vector<std::uint32_t> take();

private:
    SystemSounds() = default;

    std::vector<std::uint32_t> played_;
};
