#include "SystemSounds.h"

#include "AudioToolbox/AudioServices.h"

#include <gtest/gtest.h>

#include <vector>

TEST(SystemSoundsTest, KeepsWhatIsPlayedUntilItIsTaken) {
    static_cast<void>(SystemSounds::shared().take());
    AudioServicesPlaySystemSound(1519);
    AudioServicesPlaySystemSound(1521);
    AudioServicesPlaySystemSound(1519);
    EXPECT_EQ(SystemSounds::shared().take(), (std::vector<std::uint32_t>{1519, 1521, 1519}));
    EXPECT_TRUE(SystemSounds::shared().take().empty());
}
