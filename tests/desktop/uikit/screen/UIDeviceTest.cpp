#include "UIKit/UIDevice.h"

#include "ObjectiveC/Method.h"
#include "TestDevice.h"
#include "screen/Screen.h"

#include <gtest/gtest.h>

TEST(UIDeviceTest, TheIdiomIsTheScreens) {
    const TestDevice device;
    for (const auto idiom : {Idiom::Phone, Idiom::Pad}) {
        const Screen screen({.idiom = idiom, .size = {}});
        EXPECT_EQ(UIDevice::currentDevice()->userInterfaceIdiom(),
                  idiom == Idiom::Pad ? UIUserInterfaceIdiom::Pad : UIUserInterfaceIdiom::Phone);
    }
}

TEST(UIDeviceTest, TheIdiomIsAskedForByItsSelector) {
    const TestDevice device;
    const Screen screen({.idiom = Idiom::Pad, .size = {}});
    const auto current = UIDevice::currentDevice();
    ASSERT_TRUE(current->respondsToSelector("userInterfaceIdiom"));
    EXPECT_EQ(MessageTraits<std::int64_t>::unpack(current->performSelector("userInterfaceIdiom")), 1);
}
