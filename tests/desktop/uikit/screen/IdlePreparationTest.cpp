#include "screen/IdlePreparation.h"

#include "PicturePool.h"
#include "symbols/SymbolLibrary.h"

#include <gtest/gtest.h>

TEST(IdlePreparationTest, PreparesBitByBitAllThereIs) {
    constexpr auto more = 1000; // steps than there are
    auto steps = 0;
    while (steps < more && prepareWhileIdle())
        ++steps;
    EXPECT_LT(steps, more);
    EXPECT_GE(PicturePool::shared().allBytes(), PicturePool::usual);
    EXPECT_FALSE(PicturePool::shared().prepare());
    EXPECT_FALSE(SymbolLibrary::shared().prepare());
}
