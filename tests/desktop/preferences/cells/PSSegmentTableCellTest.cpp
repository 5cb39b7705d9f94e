#include "cells/PSSegmentTableCell.h"

#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "controls/UISegmentedControlPeer.h"
#include "system/DarwinNotifications.h"

namespace {

using Texts = std::vector<std::string>;

class PSSegmentTableCellTest : public RowsFixture {
protected:
    [[nodiscard]] UISegmentedControlPeer& segmentsOf(const std::string& id) const {
        return peerOf<UISegmentedControlPeer>(viewIn<UISegmentedControl>(id));
    }

    [[nodiscard]] static std::string choices() {
        return list("validValues", "<integer>5</integer><string>b</string><true/>") +
               texts("validTitles", {"Five", "Bee", "Yes"});
    }

    void tapSegment(const std::string& id, std::size_t index) {
        const auto frame = segmentsOf(id).convertToScreen(segmentsOf(id).segmentFrame(index));
        Phone::tap({CGRectGetMidX(frame), CGRectGetMidY(frame)});
        settle();
    }
};

} // namespace

TEST_F(PSSegmentTableCellTest, ShowsTheValue) {
    writeList({keptRow("PSSegmentCell", "a", choices()),
               keptRow("PSSegmentCell", "b", choices() + text("default", "b")),
               keptRow("PSSegmentCell", "c", choices() + value("default", "<real>5</real>"))});
    show();
    EXPECT_EQ(segmentsOf("a").selected(), std::nullopt);
    EXPECT_EQ(segmentsOf("b").selected(), 1U);
    EXPECT_EQ(segmentsOf("c").selected(), 0U);
}

TEST_F(PSSegmentTableCellTest, ATapWritesTheSegmentsValue) {
    writeList({keptRow("PSSegmentCell", "a", choices() + text("PostNotification", "com.example.changed"))});
    show();
    tapSegment("a", 1);
    EXPECT_EQ(written("a"), PropertyList("b"));
    tapSegment("a", 0);
    EXPECT_EQ(written("a"), PropertyList(5));
    EXPECT_EQ(Device::current().notifications().take().size(), 2U);
}

TEST_F(PSSegmentTableCellTest, FollowsAValueThatIsSet) {
    writeList({keptRow("PSSegmentCell", "a", choices())});
    show();
    peer().setValue(specifier("a"), true);
    EXPECT_EQ(segmentsOf("a").selected(), 2U);
    peer().setValue(specifier("a"), "none of them");
    EXPECT_EQ(segmentsOf("a").selected(), std::nullopt);
}

TEST_F(PSSegmentTableCellTest, WhatHasNoTitleIsNoChoice) {
    writeList({keptRow("PSSegmentCell", "a", texts("validValues", {"x", "y"}) + texts("validTitles", {"X"})),
               keptRow("PSSegmentCell", "b")});
    show();
    EXPECT_EQ(segmentsOf("a").segmentCount(), 1U);
    EXPECT_EQ(segmentsOf("b").segmentCount(), 0U);
    tap("b");
    EXPECT_EQ(written("b"), std::nullopt);
}

TEST_F(PSSegmentTableCellTest, ADisabledRowsSegmentsAreInert) {
    writeList({keptRow("PSSegmentCell", "a", choices() + no("enabled"))});
    show();
    tapSegment("a", 1);
    EXPECT_EQ(written("a"), std::nullopt);
}

TEST_F(PSSegmentTableCellTest, FillsTheRow) {
    writeList({keptRow("PSSegmentCell", "a", choices())});
    show();
    EXPECT_EQ(segmentsOf("a").view().frame(), CGRectMake(16, 6, 326, 32));
}

TEST_F(PSSegmentTableCellTest, EachSegmentIsAStopWithAName) {
    writeList({keptRow("PSSegmentCell", "a", choices() + text("default", "b"))});
    show();
    EXPECT_EQ(elementsOf("a"), (Texts{"Five=0", "Bee=1", "Yes=0"}));
}
