#include "DesktopClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace {

TEST(DesktopClipboardTest, IsTheOneThatProgramsShare) {
    DesktopClipboard clipboard;
    clipboard.setText("Zürich");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Zürich");
    QGuiApplication::clipboard()->setText("from elsewhere");
    EXPECT_EQ(clipboard.text(), "from elsewhere");
}

TEST(DesktopClipboardTest, GivesProgramsFiles) {
    DesktopClipboard clipboard;
    clipboard.setFiles({"file:///a%20b.gz"});
    const auto* const content = QGuiApplication::clipboard()->mimeData();
    ASSERT_TRUE(content->hasUrls());
    EXPECT_EQ(content->urls(), QList{QUrl::fromLocalFile("/a b.gz")});
    EXPECT_EQ(clipboard.text(), "file:///a b.gz"); // Qt shows URLs as people read them
}

} // namespace
