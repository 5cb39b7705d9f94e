#include "ColorGridPeer.h"
#include "Phone.h"

namespace {

/// A grid whose colours are squares of 20 points, from (50, 100) on.
class ColorGridTest : public Phone {
protected:
    ColorGridTest() {
        window->addSubview(grid_);
        grid_->setFrame(CGRectMake(50, 100, 20 * ColorGridPeer::columns, 20 * ColorGridPeer::lines));
        peer().addHandler(UIControlEvents::ValueChanged, [this] { ++changes_; });
        layOut();
    }

    [[nodiscard]] ColorGridPeer& peer() const { return peerOf<ColorGridPeer>(*grid_); }

    [[nodiscard]] static CGPoint at(int column, int line) { return {60 + 20.0 * column, 110 + 20.0 * line}; }

    Ref<ColorGrid> grid_ = make<ColorGrid>();
    int changes_ = 0;
};

} // namespace

TEST_F(ColorGridTest, AFingerChoosesWhatItIsOn) {
    down(at(3, 4));
    EXPECT_EQ(peer().color(), ColorGridPeer::colorAt(3, 4));
    move(at(5, 4));
    EXPECT_EQ(peer().color(), ColorGridPeer::colorAt(5, 4));
    up(at(5, 4));
    EXPECT_EQ(changes_, 2);
}

TEST_F(ColorGridTest, TheFirstLineIsGray) {
    tap(at(0, 0));
    EXPECT_EQ(peer().color(), (ColorComponents{1, 1, 1, 1}));
    tap(at(11, 0));
    EXPECT_EQ(peer().color(), (ColorComponents{0, 0, 0, 1}));
}

TEST_F(ColorGridTest, CodeChoosesAndTellsNobody) {
    peer().setColor(ColorGridPeer::colorAt(7, 2));
    EXPECT_EQ(peer().color(), ColorGridPeer::colorAt(7, 2));
    peer().setColor({.red = 0.123, .green = 0.456, .blue = 0.789, .alpha = 1});
    EXPECT_EQ(peer().color(), std::nullopt);
    EXPECT_EQ(changes_, 0);
}

TEST_F(ColorGridTest, IsOneStopThatTheArrowKeysMoveIn) {
    EXPECT_EQ(peer().accessibility().label, "Grid");
    peer().adjust(true);
    EXPECT_EQ(peer().accessibility().value, "ffffff");
    peer().adjust(false);
    EXPECT_EQ(changes_, 1);
    peer().adjust(true);
    EXPECT_EQ(peer().color(), ColorGridPeer::colorAt(1, 0));
}
