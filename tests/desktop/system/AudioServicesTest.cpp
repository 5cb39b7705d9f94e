#include "AudioToolbox/AudioServices.h"

#include "TestDevice.h"
#include "system/SystemSounds.h"

#include <gtest/gtest.h>

#include <vector>

TEST(AudioServicesTest, TheDeviceKeepsWhatIsPlayedUntilItIsTaken) {
    const TestDevice device;
    AudioServicesPlaySystemSound(1519);
    AudioServicesPlaySystemSound(1521);
    AudioServicesPlaySystemSound(1519);
    EXPECT_EQ(Device::current().sounds().take(), (std::vector<std::uint32_t>{1519, 1521, 1519}));
    EXPECT_TRUE(Device::current().sounds().take().empty());
}
