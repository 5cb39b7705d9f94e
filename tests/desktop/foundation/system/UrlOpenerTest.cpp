#include "system/UrlOpener.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Handler = UrlOpener::Handler;
using Urls = std::vector<std::string>;

class UrlOpenerTest : public testing::Test {
protected:
    UrlOpener opener;
};

} // namespace

TEST_F(UrlOpenerTest, WithoutAHandlerOrADesktopNothingOpens) {
    EXPECT_FALSE(opener.canOpen("nobody:x"));
    EXPECT_FALSE(opener.open("nobody:x"));
    EXPECT_TRUE(opener.take().empty());
}

TEST_F(UrlOpenerTest, AHandlerThatWorksOpensAndIsRemembered) {
    opener.setHandler("works", Handler::Works);
    EXPECT_TRUE(opener.canOpen("works://a"));
    EXPECT_TRUE(opener.open("works://a"));
    EXPECT_TRUE(opener.open("WORKS:b"));
    EXPECT_EQ(opener.take(), (Urls{"works://a", "WORKS:b"}));
    EXPECT_TRUE(opener.take().empty());
}

TEST_F(UrlOpenerTest, AHandlerThatFailsIsThereButOpensNothing) {
    opener.setHandler("FAILS", Handler::Fails);
    EXPECT_TRUE(opener.canOpen("fails:a"));
    EXPECT_FALSE(opener.open("fails:a"));
    EXPECT_TRUE(opener.take().empty());
}

TEST_F(UrlOpenerTest, TheDesktopIsAskedForOtherSchemes) {
    Urls asked;
    opener.setDesktop([&asked](const std::string& url) {
        asked.push_back(url);
        return url != "other:refused";
    });
    EXPECT_TRUE(opener.canOpen("other:a"));
    EXPECT_TRUE(opener.open("other:a"));
    EXPECT_FALSE(opener.open("other:refused"));
    EXPECT_EQ(asked, (Urls{"other:a", "other:refused"}));
    EXPECT_EQ(opener.take(), (Urls{"other:a"}));
}

TEST_F(UrlOpenerTest, NoApplicationForASchemeCountsBeforeTheDesktop) {
    opener.setDesktop([](const std::string& /*url*/) { return true; });
    opener.setHandler("none", Handler::None);
    EXPECT_FALSE(opener.canOpen("none:a"));
    EXPECT_FALSE(opener.open("none:a"));
}

TEST_F(UrlOpenerTest, WhatHasNoSchemeIsNoUrl) {
    opener.setDesktop([](const std::string& /*url*/) { return true; });
    EXPECT_FALSE(opener.canOpen("no url"));
    EXPECT_FALSE(opener.open(""));
}
