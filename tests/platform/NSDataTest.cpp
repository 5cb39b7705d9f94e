#include "Foundation/NSData.h"

#include <gtest/gtest.h>

#include <string>

TEST(NSData, HoldsTheBytesOfAText) {
    const std::string text("a\0\xff", 3);
    EXPECT_EQ(NSData::dataWithBytes(text).view(), text);
    EXPECT_TRUE(NSData().view().empty());
}

TEST(NSData, DescribesItsBytesInGroupsOfFour) {
    EXPECT_EQ(NSData().description(), "{length = 0, bytes = 0x}");
    EXPECT_EQ(NSData::dataWithBytes("abcdef").description(), "{length = 6, bytes = 0x61626364 6566}");
}

TEST(NSData, LeavesOutTheMiddleOfManyBytes) {
    EXPECT_EQ(NSData::dataWithBytes(std::string(24, 'a')).description(),
              "{length = 24, bytes = 0x61616161 61616161 61616161 61616161 61616161 61616161}");
    EXPECT_EQ(NSData::dataWithBytes(std::string(20, 'a') + "bbbbb").description(),
              "{length = 25, bytes = 0x61616161 61616161 61616161 61616161 ... 61616162 62626262}");
}
