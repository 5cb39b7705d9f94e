#include "Foundation/NSString.h"

#include <gtest/gtest.h>

#include <string>

TEST(NSString, ACStringOfValidUTF8IsCopied) {
    EXPECT_EQ(stringWithUTF8String("Grüße 🎨"), "Grüße 🎨");
    EXPECT_EQ(stringWithUTF8String(""), "");
}

TEST(NSString, ANullOrInvalidCStringIsNoText) {
    EXPECT_EQ(stringWithUTF8String(nullptr), std::nullopt);
    EXPECT_EQ(stringWithUTF8String("\xff"), std::nullopt);
}

TEST(NSString, ValidUTF8IsTheShortestFormOfEachCharacter) {
    for (const auto* const text : {"\x7f", "\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf",
                                   "\xee\x80\x80", "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"})
        EXPECT_TRUE(isValidUTF8(text)) << testing::PrintToString(text);
    EXPECT_TRUE(isValidUTF8(std::string_view("a\0b", 3)));
}

TEST(NSString, OverlongCutShortSurrogateAndTooLargeSequencesAreInvalid) {
    for (const auto* const text : {"\x80", "\xbf", "\xc0\x80", "\xc1\xbf", "\xc2", "\xc2\x41", "\xe0\x9f\xbf",
                                   "\xe1\x80", "\xed\xa0\x80", "\xed\xbf\xbf", "\xf0\x8f\xbf\xbf",
                                   "\xf1\x80\x80", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "a\xfe"})
        EXPECT_FALSE(isValidUTF8(text)) << testing::PrintToString(text);
}

TEST(NSString, AppendsAPathComponentWithOneSlash) {
    EXPECT_EQ(stringByAppendingPathComponent("/tmp", "a"), "/tmp/a");
    EXPECT_EQ(stringByAppendingPathComponent("/tmp/", "a"), "/tmp/a");
    EXPECT_EQ(stringByAppendingPathComponent("/tmp//", "//a"), "/tmp/a");
    EXPECT_EQ(stringByAppendingPathComponent("/", "a"), "/a");
    EXPECT_EQ(stringByAppendingPathComponent("", "a"), "a");
    EXPECT_EQ(stringByAppendingPathComponent("/tmp", "a/b/"), "/tmp/a/b");
    EXPECT_EQ(stringByAppendingPathComponent("/tmp/", ""), "/tmp");
    EXPECT_EQ(stringByAppendingPathComponent("/tmp", ".."), "/tmp/..");
}

TEST(NSString, DeletingTheLastPathComponentLeavesTheFolder) {
    EXPECT_EQ(stringByDeletingLastPathComponent("/a/b"), "/a");
    EXPECT_EQ(stringByDeletingLastPathComponent("/a//b/"), "/a");
    EXPECT_EQ(stringByDeletingLastPathComponent("/a"), "/");
    EXPECT_EQ(stringByDeletingLastPathComponent("/"), "/");
    EXPECT_EQ(stringByDeletingLastPathComponent("a"), "");
    EXPECT_EQ(stringByDeletingLastPathComponent("a/b"), "a");
    EXPECT_EQ(stringByDeletingLastPathComponent(""), "");
}

TEST(NSString, TheLastPathComponentIsWhatFollowsTheLastSlashThatSeparates) {
    EXPECT_EQ(lastPathComponent("/a/b"), "b");
    EXPECT_EQ(lastPathComponent("/a/b//"), "b");
    EXPECT_EQ(lastPathComponent("b"), "b");
    EXPECT_EQ(lastPathComponent("/"), "/");
    EXPECT_EQ(lastPathComponent("//"), "/");
    EXPECT_EQ(lastPathComponent(""), "");
}

TEST(NSString, ThePathExtensionFollowsTheLastDotOfTheLastComponent) {
    EXPECT_EQ(pathExtension("/a/b.tar.gz"), "gz");
    EXPECT_EQ(pathExtension("b.GZ/"), "GZ");
    EXPECT_EQ(pathExtension(".a.gz"), "gz");
    EXPECT_EQ(pathExtension("..gz"), "gz");
    for (const auto* const none : {"", "/", "b", "/a.gz/b", ".gz", "/a/.gz", "b.", "b.a gz"})
        EXPECT_EQ(pathExtension(none), "") << none;
}

TEST(NSString, DeletingThePathExtensionTakesOneAway) {
    EXPECT_EQ(stringByDeletingPathExtension("/a/b.tar.gz"), "/a/b.tar");
    EXPECT_EQ(stringByDeletingPathExtension("b.gz/"), "b");
    EXPECT_EQ(stringByDeletingPathExtension("a..gz"), "a.");
    for (const auto* const kept : {"", "/", "b", "/a.gz/b", ".gz", "/a/.gz", "b.", "b.a gz"})
        EXPECT_EQ(stringByDeletingPathExtension(kept), kept);
}

TEST(NSString, ComponentsStandBetweenSeparators) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ(componentsSeparatedByString("a, b, c", ", "), (Texts{"a", "b", "c"}));
    EXPECT_EQ(componentsSeparatedByString("a,b,c", ", "), Texts{"a,b,c"});
    EXPECT_EQ(componentsSeparatedByString("a,  b", ", "), (Texts{"a", " b"}));
    EXPECT_EQ(componentsSeparatedByString(", a, ", ", "), (Texts{"", "a", ""}));
    EXPECT_EQ(componentsSeparatedByString("", ", "), Texts{""});
    EXPECT_EQ(componentsSeparatedByString(",,,", ",,"), (Texts{"", ","}));
}

TEST(NSString, WhatMayStandInTheUrlsPathIsNotEncoded) {
    const auto* const allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789!$&'()*+,-./:=@_~";
    EXPECT_EQ(stringByAddingPercentEncodingWithURLPathAllowedCharacters(allowed), allowed);
    EXPECT_EQ(stringByAddingPercentEncodingWithURLPathAllowedCharacters(""), "");
}

TEST(NSString, AllElseIsPercentEncodedByteByByte) {
    const auto encoded = [](std::string_view text) {
        return stringByAddingPercentEncodingWithURLPathAllowedCharacters(text);
    };
    EXPECT_EQ(encoded("/my backup.tar.gz"), "/my%20backup.tar.gz");
    EXPECT_EQ(encoded("a%20b"), "a%2520b");
    EXPECT_EQ(encoded("ü"), "%C3%BC");
    EXPECT_EQ(encoded("🎨"), "%F0%9F%8E%A8");
    EXPECT_EQ(encoded(" \"#%;<>?[\\]^`{|}\x7f\n"), "%20%22%23%25%3B%3C%3E%3F%5B%5C%5D%5E%60%7B%7C%7D%7F%0A");
    EXPECT_EQ(encoded(std::string_view("\0", 1)), "%00");
}
