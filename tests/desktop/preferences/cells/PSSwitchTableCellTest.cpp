#include "CALayerPeer.h"
#include "Foundation/NSUserDefaults.h"
#include "PageFixture.h"
#include "RectGeometry.h"
#include "cells/PSControlTableCellPeer.h"
#include "controls/UISwitchPeer.h"
#include "system/DarwinNotifications.h"

namespace {

using namespace std::chrono_literals;

class PSSwitchTableCellTest : public PageFixture {
protected:
    UISwitchPeer& switchOf(const std::string& id) {
        const auto control = peerOf<PSControlTableCellPeer>(cell(id)).control();
        return peerOf<UISwitchPeer>(dynamic_cast<UISwitch&>(*control));
    }

    void tapSwitch(const std::string& id) {
        auto& control = switchOf(id);
        const auto frame = control.convertToScreen(control.view().bounds());
        const CGPoint middle{CGRectGetMidX(frame), CGRectGetMidY(frame)};
        finger.touch(TouchPhase::Began, middle);
        finger.touch(TouchPhase::Ended, middle);
        advance(1s);
    }

    [[nodiscard]] std::optional<PropertyList> kept(const std::string& key) const {
        return NSUserDefaults::initWithSuiteName(domain)->objectForKey(key);
    }
};

} // namespace

TEST_F(PSSwitchTableCellTest, ShowsTheValue) {
    writeList({keptRow("PSSwitchCell", "a"), keptRow("PSSwitchCell", "b", yes("default")),
               keptRow("PSSwitchCell", "c", text("default", "YES")),
               keptRow("PSSwitchCell", "d", value("default", "<array/>"))});
    show();
    EXPECT_FALSE(switchOf("a").isOn());
    EXPECT_TRUE(switchOf("b").isOn());
    EXPECT_TRUE(switchOf("c").isOn());
    EXPECT_FALSE(switchOf("d").isOn());
}

TEST_F(PSSwitchTableCellTest, StandsAtTheRightEdge) {
    writeList({keptRow("PSSwitchCell", "a")});
    show();
    const auto frame = switchOf("a").view().frame();
    EXPECT_EQ(CGRectGetMaxX(frame), 342);
    EXPECT_NEAR(CGRectGetMidY(frame), 22, 0.4);
    EXPECT_EQ(frame.size, UISwitchPeer::size);
}

TEST_F(PSSwitchTableCellTest, ATapWritesABoolean) {
    writeList({keptRow("PSSwitchCell", "a", text("PostNotification", "com.example.changed"))});
    show();
    tapSwitch("a");
    EXPECT_EQ(kept("a"), PropertyList(true));
    tapSwitch("a");
    EXPECT_EQ(kept("a"), PropertyList(false));
    EXPECT_EQ(Device::current().notifications().take().size(), 2U);
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSSwitchTableCellTest, ANegatedSwitchShowsAndKeepsTheOpposite) {
    writeList({keptRow("PSSwitchCell", "a", yes("negate"))});
    show();
    EXPECT_TRUE(switchOf("a").isOn());
    tapSwitch("a");
    EXPECT_FALSE(switchOf("a").isOn());
    EXPECT_EQ(kept("a"), PropertyList(true));
}

TEST_F(PSSwitchTableCellTest, FollowsAValueThatIsSet) {
    writeList({keptRow("PSSwitchCell", "a")});
    show();
    peer().setValue(specifier("a"), true);
    EXPECT_TRUE(switchOf("a").isOn());
    EXPECT_EQ(kept("a"), PropertyList(true));
}

TEST_F(PSSwitchTableCellTest, ADisabledRowsSwitchIsInert) {
    writeList({keptRow("PSSwitchCell", "a", no("enabled"))});
    show();
    tapSwitch("a");
    EXPECT_EQ(kept("a"), std::nullopt);
    EXPECT_EQ(switchOf("a").view().layer().peer().number(LayerProperty::Opacity), 0.5);
}

TEST_F(PSSwitchTableCellTest, WritesForTheRowThatItShowsNow) {
    std::vector<std::string> items(100);
    for (std::size_t number = 0; number < items.size(); ++number)
        items[number] = keptRow("PSSwitchCell", std::to_string(number));
    writeList(items);
    show();
    peer().scrollRowIntoView(90);
    tapSwitch("88");
    EXPECT_EQ(NSUserDefaults::initWithSuiteName(domain)->dictionaryRepresentation(),
              (PropertyList::Dictionary{{"88", true}}));
}
