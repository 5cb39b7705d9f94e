#include "screen/IdlePreparation.h"

#include "KnownPictures.h"
#include "KnownTexts.h"
#include "PicturePool.h"
#include "PngFile.h"
#include "TestDevice.h"
#include "symbols/SymbolLibrary.h"

#include <gtest/gtest.h>

TEST(IdlePreparationTest, PreparesBitByBitAllThereIs) {
    const TestDevice device;
    device.write("/a/prepared@3x.png", pngFile(31, 41));
    KnownPictures::shared().expect("/a", "@3x.png");
    const auto decodedBefore = KnownPictures::shared().decodedCount();
    constexpr auto more = 1000; // steps than there are
    auto steps = 0;
    while (steps < more && prepareWhileIdle())
        ++steps;
    EXPECT_LT(steps, more);
    EXPECT_GE(PicturePool::shared().allBytes(), PicturePool::usual);
    EXPECT_FALSE(PicturePool::shared().prepare());
    EXPECT_FALSE(SymbolLibrary::shared().prepare());
    EXPECT_FALSE(KnownTexts::shared().prepare());
    EXPECT_EQ(KnownPictures::shared().decodedCount(), decodedBefore + 1);
}
