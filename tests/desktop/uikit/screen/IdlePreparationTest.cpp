#include "screen/IdlePreparation.h"

#include "PicturePool.h"
#include "symbols/SymbolLibrary.h"

#include <gtest/gtest.h>

TEST(IdlePreparationTest, PreparesBitByBitAllThereIs) {
    static_cast<void>(prepareWhileIdle());
    while (prepareWhileIdle()) {
    }
    EXPECT_GE(PicturePool::shared().allBytes(), PicturePool::usual);
    EXPECT_FALSE(PicturePool::shared().prepare());
    EXPECT_FALSE(SymbolLibrary::shared().prepare());
}
