#include "views/WrappedLabel.h"

#include "DesktopColor.h"
#include "TestDevice.h"
#include "screen/Screen.h"
#include "views/UILabelPeer.h"

#include <gtest/gtest.h>

namespace {

class WrappedLabelTest : public testing::Test {
protected:
    TestDevice device;
    Screen screen{{}};
};

} // namespace

TEST_F(WrappedLabelTest, HasTheLooksThatItIsMadeWith) {
    constexpr FontStyle style{.size = 22, .weight = FontWeight::Bold};
    const auto label = wrappedLabel("Text", style, SystemColor::SecondaryLabel, NSTextAlignment::Center);
    const auto properties = label->peer().inspectedProperties();
    EXPECT_EQ(peerOf<UILabelPeer>(*label).text(), "Text");
    EXPECT_EQ(peerOf<UILabelPeer>(*label).fontStyle(), style);
    EXPECT_EQ(properties.at("textAlignment").integerValue(), static_cast<int>(NSTextAlignment::Center));
    EXPECT_EQ(properties.at("numberOfLines").integerValue(), 0);
}

TEST_F(WrappedLabelTest, NeedsMoreHeightWhereThereIsLessWidth) {
    const auto label = wrappedLabel("Some words that go on in a second line", {}, SystemColor::Label);
    const auto one = heightOf(*label, 1000);
    EXPECT_NEAR(one, FontStyle().lineHeight(), 0.5);
    EXPECT_NEAR(heightOf(*label, 200), 2 * one, 0.5);
}
