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

TEST(ClipboardTest, KeepsFilesAsTheirUrls) {
    Clipboard clipboard;
    clipboard.setText("text");
    clipboard.setFiles({"file:///a", "file:///b"});
    EXPECT_EQ(clipboard.text(), "file:///a\nfile:///b");
}

} // namespace
