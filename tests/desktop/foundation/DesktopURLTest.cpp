#include "DesktopURL.h"

#include "Foundation/NSFileManager.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

namespace {

std::string textOf(const Ref<NSURL>& url) {
    return dynamicCast<DesktopURL>(url)->absoluteString();
}

} // namespace

TEST(DesktopURLTest, AFilesUrlIsItsPathEncoded) {
    const auto url = NSURL::fileURLWithPath("/var/mobile/a b;%ü.tar.gz");
    EXPECT_EQ(textOf(url), "file:///var/mobile/a%20b%3B%25%C3%BC.tar.gz");
    EXPECT_EQ(url->path(), "/var/mobile/a b;%ü.tar.gz");
    EXPECT_EQ(url->lastPathComponent(), "a b;%ü.tar.gz");
}

TEST(DesktopURLTest, AUrlKeepsItsTextAndTellsItsPathDecoded) {
    const auto url = NSURL::URLWithString("filza://view/var/a%20b.gz?x=/y#/z");
    EXPECT_EQ(textOf(url), "filza://view/var/a%20b.gz?x=/y#/z");
    EXPECT_EQ(url->path(), "/var/a b.gz");
    EXPECT_EQ(NSURL::URLWithString("x://host")->path(), "");
    EXPECT_EQ(NSURL::URLWithString("x:/a/b/")->path(), "/a/b");
    EXPECT_EQ(NSURL::URLWithString("/a:b")->path(), "/a:b");
}

TEST(DesktopURLTest, WhatShouldBeEncodedAndIsNotIsNoUrl) {
    for (const auto* const text : {"", "a b", "a%", "a%4", "a%4g", "%zz", "ü", "<a>", "a\"b", "a\\b", "a\nb"})
        EXPECT_FALSE(NSURL::URLWithString(text)) << text;
    for (const auto* const text : {"a", "a%4f", "http://[::1]:80/~a?b=[c]#d", "x:a@b,c;d='e'"})
        EXPECT_TRUE(NSURL::URLWithString(text)) << text;
}

TEST(DesktopURLTest, TheExtensionFollowsTheLastDot) {
    const auto extension = [](std::string_view path) {
        return NSURL::fileURLWithPath(path)->pathExtension();
    };
    EXPECT_EQ(extension("/a/b.tar.gz"), "gz");
    EXPECT_EQ(extension("/a/b.GZ"), "GZ");
    EXPECT_EQ(extension("/a.b/c"), "");
    EXPECT_EQ(extension("/a/.gz"), "");
    EXPECT_EQ(extension("/a/..gz"), "gz");
    EXPECT_EQ(extension("/a/b."), "");
    EXPECT_EQ(extension("/a/b.c d"), "");
    EXPECT_EQ(extension("/a/b c.d"), "d");
    EXPECT_EQ(extension("/"), "");
}

TEST(DesktopURLTest, AFolderIsNamedByItsLastComponent) {
    EXPECT_EQ(NSURL::fileURLWithPath("/a/b/")->lastPathComponent(), "b");
    EXPECT_EQ(NSURL::fileURLWithPath("/")->lastPathComponent(), "/");
    EXPECT_EQ(NSURL::fileURLWithPath("/")->path(), "/");
}

TEST(DesktopURLTest, AccessNeedNotBeAskedFor) {
    const auto url = NSURL::fileURLWithPath("/a");
    EXPECT_FALSE(url->startAccessingSecurityScopedResource());
}

TEST(DesktopURLTest, TheDocumentsFolderIsTheUsers) {
    const TestDevice device;
    const auto folders =
        NSFileManager::defaultManager().URLsForDirectory(NSSearchPathDirectory::DocumentDirectory);
    ASSERT_EQ(folders.size(), 1U);
    EXPECT_EQ(folders.front()->path(), Device::documentsPath);
}
