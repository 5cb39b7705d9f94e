#include "cells/PSSliderTableCell.h"

#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "controls/UISliderPeer.h"
#include "system/DarwinNotifications.h"
#include "views/UILabelPeer.h"

#include <QImage>

namespace {

using Texts = std::vector<std::string>;

class PSSliderTableCellTest : public RowsFixture {
protected:
    [[nodiscard]] UISliderPeer& sliderOf(const std::string& id) const {
        return peerOf<UISliderPeer>(viewIn<UISlider>(id));
    }

    [[nodiscard]] static std::string number(const std::string& key, const std::string& number) {
        return value(key, "<real>" + number + "</real>");
    }

    /// Where the thumb is on the screen.
    [[nodiscard]] CGPoint thumbOf(const std::string& id) const {
        const auto frame = sliderOf(id).convertToScreen(sliderOf(id).thumbFrame());
        return {CGRectGetMidX(frame), CGRectGetMidY(frame)};
    }

    void dragThumb(const std::string& id, double distance) {
        const auto from = thumbOf(id);
        down(from);
        advance(std::chrono::milliseconds(200));
        move({from.x + distance, from.y});
    }
};

} // namespace

TEST_F(PSSliderTableCellTest, ShowsTheValueInItsRange) {
    writeList(
        {keptRow("PSSliderCell", "a", number("default", "0.25")),
         keptRow("PSSliderCell", "b", number("min", "10") + number("max", "20") + number("default", "30")),
         keptRow("PSSliderCell", "c", number("min", "5") + number("max", "20")),
         keptRow("PSSliderCell", "d", number("min", "5") + number("max", "1"))});
    show();
    EXPECT_EQ(sliderOf("a").value(), 0.25);
    EXPECT_EQ(sliderOf("b").value(), 20);
    EXPECT_EQ(sliderOf("c").value(), 5);
    EXPECT_EQ(sliderOf("d").value(), 5);
    EXPECT_EQ(written("b"), std::nullopt);
}

TEST_F(PSSliderTableCellTest, FillsTheRow) {
    writeList({keptRow("PSSliderCell", "a")});
    show();
    EXPECT_EQ(sliderOf("a").view().frame(), CGRectMake(16, 5, 326, 34));
}

TEST_F(PSSliderTableCellTest, WritesWhileTheThumbMoves) {
    writeList({keptRow("PSSliderCell", "a", text("PostNotification", "com.example.changed"))});
    show();
    dragThumb("a", 149);
    EXPECT_EQ(written("a"), PropertyList(0.5));
    up(thumbOf("a"));
    EXPECT_EQ(Device::current().notifications().take().size(), 1U);
}

TEST_F(PSSliderTableCellTest, StaysUnderTheFingerWhateverIsReadMeanwhile) {
    writeList({keptRow("PSSliderCell", "a", no("isContinuous"))});
    show();
    dragThumb("a", 149);
    peer().reloadSpecifier(specifier("a"));
    EXPECT_EQ(sliderOf("a").value(), 0.5);
    up(thumbOf("a"));
    EXPECT_EQ(written("a"), PropertyList(0.5));
}

TEST_F(PSSliderTableCellTest, OneThatIsNotContinuousWritesAtTheEnd) {
    writeList({keptRow("PSSliderCell", "a", no("isContinuous"))});
    show();
    dragThumb("a", 149);
    EXPECT_EQ(written("a"), std::nullopt);
    up(thumbOf("a"));
    EXPECT_EQ(written("a"), PropertyList(0.5));
}

TEST_F(PSSliderTableCellTest, ShowsItsNumber) {
    writeList({keptRow("PSSliderCell", "a", yes("showValue") + number("default", "0.5")),
               keptRow("PSSliderCell", "b", number("default", "0.5"))});
    show();
    EXPECT_EQ(peerOf<UILabelPeer>(*dynamicCast<UILabel>(cellPeer("a").contentView().peer().subviews().back()))
                  .text(),
              "0.5");
    EXPECT_LT(sliderOf("a").view().frame().size.width, 300);
    peer().setValue(specifier("a"), 0.123);
    EXPECT_EQ(peerOf<UILabelPeer>(*dynamicCast<UILabel>(cellPeer("a").contentView().peer().subviews().back()))
                  .text(),
              "0.12");
    EXPECT_EQ(sliderOf("b").view().frame().size.width, 326);
}

TEST_F(PSSliderTableCellTest, ItsNumberIsShownWholeAndUngrouped) {
    writeList(
        {keptRow("PSSliderCell", "a",
                 yes("showValue") + number("min", "0") + number("max", "2000") +
                     number("default", "1500.25")),
         keptRow("PSSliderCell", "b",
                 yes("showValue") + number("min", "-10") + number("max", "1") + number("default", "-9.88"))});
    show();
    for (const auto& [id, shown] : {std::pair("a", "1500.25"), std::pair("b", "-9.88")}) {
        const auto label = dynamicCast<UILabel>(cellPeer(id).contentView().peer().subviews().back());
        EXPECT_EQ(peerOf<UILabelPeer>(*label).text(), shown);
        EXPECT_FALSE(peerOf<UILabelPeer>(*label).isTruncated()) << shown;
    }
}

TEST_F(PSSliderTableCellTest, ASegmentedOneRestsAtItsStops) {
    writeList(
        {keptRow("PSSliderCell", "a",
                 yes("isSegmented") + value("segmentCount", "<integer>4</integer>") + number("max", "4"))});
    show();
    dragThumb("a", 100);
    EXPECT_EQ(written("a"), PropertyList(1.0));
    cancel();
}

TEST_F(PSSliderTableCellTest, HasImagesAtItsEnds) {
    QImage picture(21, 21, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    picture.save(QString::fromStdString(device.hostPath(std::string(bundlePath) + "/low.png")));
    device.write(std::string(bundlePath) + "/broken.png", "no image");
    writeList(
        {keptRow("PSSliderCell", "a", text("leftImage", "low.png") + text("rightImage", "broken.png"))});
    show();
    EXPECT_EQ(sliderOf("a").thumbFrame().origin.x, 29);
    EXPECT_EQ(log(), Texts{std::string(bundlePath) +
                           "/Rows.plist: item 1: 'rightImage' names broken.png, which is no image."});
    peer().setValue(specifier("a"), 1.0);
    EXPECT_EQ(CGRectGetMaxX(sliderOf("a").thumbFrame()), 326);
}

TEST_F(PSSliderTableCellTest, ADisabledRowsSliderIsInert) {
    writeList({keptRow("PSSliderCell", "a", no("enabled"))});
    show();
    dragThumb("a", 149);
    EXPECT_EQ(sliderOf("a").value(), 0);
    cancel();
}

TEST_F(PSSliderTableCellTest, IsOneStopWithAName) {
    writeList({keptRow("PSSliderCell", "a", yes("showValue") + number("default", "0.5")),
               text("cell", "PSSliderCell") + text("key", "volume")});
    show();
    EXPECT_EQ(elementsOf("a"), Texts{"Row a=0.5"});
    EXPECT_EQ(rolesOf("a"), std::vector{AccessibilityRole::Slider});
    EXPECT_EQ(elementsOf("volume"), Texts{"volume=0%"});
}

TEST_F(PSSliderTableCellTest, IsSetByTheArrowKeys) {
    writeList({keptRow("PSSliderCell", "a")});
    show();
    sliderOf("a").adjust(true);
    EXPECT_EQ(written("a"), PropertyList(0.1));
}
