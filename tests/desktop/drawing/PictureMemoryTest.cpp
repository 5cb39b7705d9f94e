#include "PictureMemory.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <cstddef>
#include <vector>

TEST(PictureMemoryTest, APictureIsAllocatedApartThoughALargerOneWas) {
    giveBackPictureMemory();
    constexpr std::size_t larger = 12'000'000;
    constexpr std::size_t smaller = 4'000'000;
    static_cast<void>(std::vector<std::byte>(larger));
    const auto before = mallinfo2().hblks;
    const std::vector<std::byte> picture(smaller);
    EXPECT_EQ(mallinfo2().hblks, before + 1);
}
