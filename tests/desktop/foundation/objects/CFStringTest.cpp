#include "objects/CFStringObject.h"

#include <gtest/gtest.h>

TEST(CFStringTest, IsReadByWhoTakesIt) {
    const CFString text("com.example.Zürich");
    ASSERT_NE(text.ref(), nullptr);
    EXPECT_EQ(text.ref()->text, "com.example.Zürich");
    EXPECT_EQ(CFString("").ref()->text, "");
}
