#include "typing/Clipboard.h"

#include <gtest/gtest.h>

namespace {

TEST(ClipboardTest, KeepsTheLastText) {
    Clipboard clipboard;
    EXPECT_EQ(clipboard.text(), "");
    clipboard.setText("first");
    clipboard.setText("Zürich");
    EXPECT_EQ(clipboard.text(), "Zürich");
}

} // namespace
