#include "DesktopClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

namespace {

TEST(DesktopClipboardTest, IsTheOneThatProgramsShare) {
    DesktopClipboard clipboard;
    clipboard.setText("Zürich");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Zürich");
    QGuiApplication::clipboard()->setText("from elsewhere");
    EXPECT_EQ(clipboard.text(), "from elsewhere");
}

} // namespace
