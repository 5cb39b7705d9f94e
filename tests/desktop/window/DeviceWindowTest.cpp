#include "PicturePool.h"
#include "PresentedStandIn.h"
#include "WindowFixture.h"
#include "controls/UISliderPeer.h"
#include "scrolling/UIScrollViewPeer.h"
#include "time/MainQueueScheduler.h"

#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPalette>
#include <QUrl>
#include <QWheelEvent>
#include <cstddef>
#include <vector>

namespace {

using DeviceWindowTest = WindowFixture;

TEST_F(DeviceWindowTest, GivesTheDeviceThePixelsThatItShows) {
    EXPECT_EQ(screen.traits().displayScale, 0.5);
    shown.resize(390, 844);
    run();
    EXPECT_EQ(screen.traits().displayScale, 1);
}

TEST_F(DeviceWindowTest, KeepsAScaleThatWasAskedFor) {
    DeviceWindow other(
        screen, finger,
        {.scale = 2, .followsAppearance = true, .goBack = [] {}, .beginFrame = [] {}, .showTime = [] {}});
    other.resize(100, 100);
    run();
    EXPECT_EQ(screen.traits().displayScale, 2);
}

TEST_F(DeviceWindowTest, HandsTheMouseOnAsAFinger) {
    click({60, 61}); // half a unit for a point
    EXPECT_EQ(firstPresses_, 1);
    click({60, 111});
    EXPECT_EQ(secondPresses_, 1);
    click({60, 180});
    EXPECT_EQ(firstPresses_ + secondPresses_, 2);
}

/// So many pictures that no memory for one is ready.
std::vector<QImage> picturesInAllMemory() {
    auto& pool = PicturePool::shared();
    std::vector<QImage> pictures;
    while (pool.keptBytes() >= PicturePool::smallest)
        pictures.push_back(pool.make({256, 128}));
    return pictures;
}

constexpr auto portionsPrepared = PicturePool::prepared / PictureRegion::portion;
constexpr auto leftOver = 2 * PictureRegion::portion; ///< at most, of those that a picture is painted in

TEST_F(DeviceWindowTest, PreparesMemoryForPicturesWhileNothingChanges) {
    const auto pictures = picturesInAllMemory();
    for (std::size_t portion = 0; portion <= portionsPrepared; ++portion) {
        shown.wake();
        run();
    }
    EXPECT_GE(PicturePool::shared().keptBytes(), PicturePool::prepared);
}

TEST_F(DeviceWindowTest, PreparesNothingInAFrameThatShowsSomethingNew) {
    const auto pictures = picturesInAllMemory();
    for (std::size_t portion = 0; portion <= portionsPrepared; ++portion) {
        first_->setAlpha(portion % 2 == 0 ? 0.5 : 1);
        shown.wake();
        run();
    }
    EXPECT_LT(PicturePool::shared().keptBytes(), leftOver);
}

TEST_F(DeviceWindowTest, PreparesNothingWhileSomethingMoves) {
    const auto pictures = picturesInAllMemory();
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None, [this] { first_->setAlpha(0.5); }, {});
    for (std::size_t portion = 0; portion <= portionsPrepared; ++portion) {
        shown.wake(); // at the same moment, so that it looks the same
        run();
    }
    EXPECT_LT(PicturePool::shared().keptBytes(), leftOver);
}

TEST_F(DeviceWindowTest, IgnoresTheOtherButtonsOfTheMouse) {
    QMouseEvent down(QEvent::MouseButtonPress, QPointF(60, 61), QPointF(60, 61), Qt::RightButton,
                     Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &down);
    EXPECT_FALSE(finger.isTouching());
}

TEST_F(DeviceWindowTest, LiftsTheFingerWithoutATapWhenItLosesTheKeyboard) {
    QMouseEvent down(QEvent::MouseButtonPress, QPointF(60, 61), QPointF(60, 61), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &down);
    EXPECT_TRUE(first_->isTracking());
    QFocusEvent lost(QEvent::FocusOut);
    QCoreApplication::sendEvent(&shown, &lost);
    EXPECT_FALSE(first_->isTracking());
    EXPECT_EQ(firstPresses_, 0);
}

TEST_F(DeviceWindowTest, ScrollsWithTheWheel) {
    const auto scroll = make<UIScrollView>();
    scroll->setFrame(CGRectMake(0, 300, 390, 400));
    peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 2000});
    window->addSubview(scroll);
    run();
    const auto before = peerOf<UIScrollViewPeer>(*scroll).contentOffset().y;
    QWheelEvent wheel(QPointF(100, 200), QPointF(100, 200), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&shown, &wheel);
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*scroll).contentOffset().y, before + 48);
}

TEST_F(DeviceWindowTest, MovesTheKeyboardRoundTheElements) {
    EXPECT_FALSE(shown.focusedView());
    press(Qt::Key_Tab);
    EXPECT_EQ(shown.focusedView(), first_);
    press(Qt::Key_Tab);
    EXPECT_EQ(shown.focusedView(), second_);
    press(Qt::Key_Tab);
    EXPECT_EQ(shown.focusedView(), first_);
    press(Qt::Key_Backtab);
    EXPECT_EQ(shown.focusedView(), second_);
}

TEST_F(DeviceWindowTest, PressesTheElementThatTheKeyboardIsAt) {
    press(Qt::Key_Space);
    EXPECT_EQ(firstPresses_ + secondPresses_, 0);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(firstPresses_, 0);
    EXPECT_EQ(secondPresses_, 2);
}

TEST_F(DeviceWindowTest, PassesByWhatIsHidden) {
    first_->peer().setHidden(true);
    press(Qt::Key_Tab);
    EXPECT_EQ(shown.focusedView(), second_);
}

TEST_F(DeviceWindowTest, GoesBackWithEscape) {
    press(Qt::Key_Escape);
    EXPECT_EQ(timesBack_, 1);
}

TEST_F(DeviceWindowTest, ClosesWhatIsPresentedWithEscape) {
    const auto cover = make<PresentedStandIn>();
    screen.presentations().add(*cover, *cover);
    press(Qt::Key_Escape);
    EXPECT_EQ(cover->dismissals, 1);
    EXPECT_EQ(timesBack_, 0);
}

TEST_F(DeviceWindowTest, KeepsTheKeyboardWithinWhatIsPresented) {
    const auto cover = make<PresentedStandIn>();
    screen.presentations().add(*cover, *cover);
    press(Qt::Key_Tab);
    EXPECT_FALSE(shown.focusedView());
}

TEST_F(DeviceWindowTest, IsDarkWhenTheDesktopIs) {
    const auto before = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(Qt::white, QColor(30, 30, 30)));
    EXPECT_EQ(screen.traits().style, UserInterfaceStyle::Dark);
    QGuiApplication::setPalette(QPalette(Qt::black, Qt::white));
    EXPECT_EQ(screen.traits().style, UserInterfaceStyle::Light);
    QGuiApplication::setPalette(before);
}

TEST_F(DeviceWindowTest, WhatIsBegunIsShownFirstAsOfTheSameTime) {
    run();
    betweenFrames_ = std::chrono::milliseconds(7);
    const auto before = device.clock().uptime();
    send(QEvent::MouseButtonPress);
    const auto begun = device.clock().uptime();
    EXPECT_EQ(begun, before + betweenFrames_);
    send(QEvent::MouseButtonRelease);
    EXPECT_EQ(device.clock().uptime(), begun);
    run();
    EXPECT_EQ(timeOfPicture_, begun);
    EXPECT_GT(device.clock().uptime(), begun) << "what comes next";
}

TEST_F(DeviceWindowTest, WhatHappensBetweenTwoPicturesHasItsOwnTime) {
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None, [this] { first_->setAlpha(0.5); }, {});
    shown.wake();
    run();
    betweenFrames_ = std::chrono::milliseconds(7);
    const auto before = device.clock().uptime();
    send(QEvent::MouseButtonPress);
    EXPECT_EQ(device.clock().uptime(), before + betweenFrames_);
    send(QEvent::MouseButtonRelease);
    EXPECT_EQ(device.clock().uptime(), before + 2 * betweenFrames_);
}

TEST_F(DeviceWindowTest, RunsTheDevicesWork) {
    auto ran = false;
    Device::current().mainQueue().after({}, [&ran] { ran = true; });
    shown.wake();
    run();
    EXPECT_TRUE(ran);
}

} // namespace

namespace {

/// A slider below the buttons.
class DeviceWindowSliderTest : public WindowFixture {
protected:
    DeviceWindowSliderTest() {
        slider_->setFrame(CGRectMake(20, 300, 200, 34));
        slider_->peer().setAccessibility({.label = "Volume", .value = {}, .isElement = true});
        window->addSubview(slider_);
        layOut();
    }

    void goToSlider() {
        for (auto count = 0; count < 10 && shown.focusedView() != slider_; ++count)
            WindowFixture::press(Qt::Key_Tab);
        ASSERT_EQ(shown.focusedView(), slider_);
    }

    [[nodiscard]] double value() const { return peerOf<UISliderPeer>(*slider_).value(); }

    Ref<UISlider> slider_ = make<UISlider>();
};

} // namespace

TEST_F(DeviceWindowSliderTest, TheArrowKeysMoveIt) {
    press(Qt::Key_Right);
    EXPECT_EQ(value(), 0);
    goToSlider();
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_NEAR(value(), 0.2, 1e-9);
    press(Qt::Key_Left);
    EXPECT_NEAR(value(), 0.1, 1e-9);
}

TEST_F(DeviceWindowSliderTest, FilesAreDroppedOnlyWhereSomethingWaitsForThem) {
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/etc/passwd")});
    QDragEnterEvent entered({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &entered);
    EXPECT_FALSE(entered.isAccepted());
    QDropEvent dropped({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &dropped);
    EXPECT_FALSE(dropped.isAccepted());
}
