#include "Dispatch/MainQueue.h"
#include "DriverFixture.h"
#include "Foundation/NSLog.h"
#include "controls/UIControlPeer.h"
#include "system/DarwinNotifications.h"
#include "views/UIViewPeer.h"

#include <QImage>

namespace {

using DriverCommandsTest = DriverFixture;

TEST_F(DriverCommandsTest, AdvanceRunsWhatFallsDue) {
    std::vector<int> ran;
    MainQueue::after(std::chrono::milliseconds(500), [&ran] { ran.push_back(1); });
    MainQueue::after(std::chrono::milliseconds(1500), [&ran] { ran.push_back(2); });
    EXPECT_EQ(ask("advance 0.5").value("now").toString(), "2026-11-16T03:12:00.500Z");
    EXPECT_EQ(ran, std::vector{1});
    EXPECT_EQ(ask("settle").value("now").toString(), "2026-11-16T03:12:01.500Z");
    EXPECT_EQ(ran, (std::vector{1, 2}));
}

TEST_F(DriverCommandsTest, SettleRefusesToWaitForWhatNeverEnds) {
    const std::function<void()> again = [&again] { MainQueue::after(std::chrono::seconds(1), again); };
    again();
    EXPECT_EQ(refusalOf("settle"), "something still waited or moved after 5 minutes");
}

class BadAdvance : public DriverFixture, public testing::WithParamInterface<const char*> {};

TEST_P(BadAdvance, IsRefusedAndMovesNothing) {
    EXPECT_FALSE(refusalOf(GetParam()).empty());
    EXPECT_EQ(device.clock().uptime(), std::chrono::nanoseconds::zero());
}

INSTANTIATE_TEST_SUITE_P(Lines, BadAdvance,
                         testing::Values("advance", "advance -1", "advance nan", "advance inf",
                                         "advance 1e300", "advance 86401", "advance 1s", "advance 1 2",
                                         "advance one", "settle 1"));

TEST_F(DriverCommandsTest, LogAndNotificationsAreTakenOnce) {
    NSLog("Deleting backup: %@", std::string("a"));
    Device::current().notifications().post("com.example/Reload");
    EXPECT_EQ(ask("log").value("events").toArray(), QJsonArray{"Deleting backup: a"});
    EXPECT_EQ(ask("log").value("events").toArray(), QJsonArray());
    EXPECT_EQ(ask("notifications").value("events").toArray(), QJsonArray{"com.example/Reload"});
    EXPECT_EQ(ask("notifications").value("events").toArray(), QJsonArray());
}

TEST_F(DriverCommandsTest, LiveCountsTheObjectsOfAClass) {
    const auto labels = [this] { return ask("live UILabel").value("count").toInt(-1); };
    const auto before = labels();
    {
        const auto label = make<UILabel>();
        EXPECT_EQ(labels(), before + 1);
    }
    EXPECT_EQ(labels(), before);
    EXPECT_TRUE(ask("live UILabel").value("known").toBool());
    EXPECT_FALSE(ask("live NoSuchClass").value("known").toBool(true));
    EXPECT_EQ(ask("live NoSuchClass").value("count").toInt(-1), 0);
    EXPECT_FALSE(refusalOf("live").empty());
}

TEST_F(DriverCommandsTest, SnapshotIsAPictureOfTheScreen) {
    const auto path = device.hostPath("/picture.png");
    window->setBackgroundColor(UIColor::colorWithRed(1, 0, 0, 1));
    EXPECT_EQ(ask("snapshot \"" + path + "\"").value("size").toArray(), (QJsonArray{1170, 2532}));
    const QImage picture(QString::fromStdString(path));
    EXPECT_EQ(picture.size(), QSize(1170, 2532));
    EXPECT_EQ(picture.pixelColor(500, 1000), QColor(255, 0, 0));
}

TEST_F(DriverCommandsTest, SnapshotHasTheShapeOfTheGlassWhenAsked) {
    const auto path = device.hostPath("/picture.png");
    window->setBackgroundColor(UIColor::colorWithRed(1, 0, 0, 1));
    EXPECT_TRUE(ask("snapshot \"" + path + "\" rounded").contains("size"));
    const QImage picture(QString::fromStdString(path));
    for (const QPoint corner : {QPoint(0, 0), QPoint(1169, 0), QPoint(0, 2531), QPoint(1169, 2531)})
        EXPECT_EQ(picture.pixelColor(corner).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(0, 1200), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(60, 60), QColor(255, 0, 0));
    EXPECT_EQ(refusalOf("snapshot \"" + path + "\" square"), "usage: snapshot FILE [rounded]");
}

TEST_F(DriverCommandsTest, SnapshotSaysWhenItCannotWrite) {
    EXPECT_TRUE(refusalOf("snapshot /proc/nowhere/a.png").starts_with("the picture cannot be written: "));
}

TEST_F(DriverCommandsTest, SnapshotThatFindsNoRoomLosesNoMemory) {
    for (auto round = 0; round < 3; ++round)
        EXPECT_EQ(refusalOf("snapshot /dev/full"), "the picture cannot be written: No space left on device");
    EXPECT_EQ(refusalOf("snapshot \"\""), "the picture cannot be written: it has no name");
    const auto name = device.hostPath("/" + std::string(5000, 'a'));
    EXPECT_EQ(refusalOf("snapshot " + name), "the picture cannot be written: File name too long");
    EXPECT_TRUE(refusalOf("snapshot " + device.hostPath("/")).starts_with("the picture cannot be written"));
}

TEST_F(DriverCommandsTest, ViewsTellsOfAViewWithItsLayerAndSubviews) {
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 100, 200, 44), "Apply", presses);
    button->layer().setCornerRadius(8);
    button->layer().setBorderWidth(1.5);
    const auto label = addLabel(CGRectMake(5, 6, 70, 20), "Text", *button);
    const auto views = ask("views UIControl").value("views").toArray();
    ASSERT_EQ(views.size(), 1);
    const auto view = views[0].toObject();
    EXPECT_EQ(view.value("class").toString(), "UIControl");
    EXPECT_EQ(view.value("screenFrame").toArray(), (QJsonArray{20, 100, 200, 44}));
    EXPECT_EQ(view.value("alpha").toDouble(), 1);
    EXPECT_FALSE(view.value("hidden").toBool(true));
    EXPECT_EQ(view.value("layer")["cornerRadius"].toDouble(), 8);
    EXPECT_EQ(view.value("layer")["borderWidth"].toDouble(), 1.5);
    EXPECT_EQ(view.value("layer")["masksToBounds"].toBool(true), false);
    EXPECT_TRUE(view.value("layer")["shadowPath"].isNull());
    EXPECT_EQ(view.value("accessibility")["label"].toString(), "Apply");
    EXPECT_EQ(view.value("properties")["enabled"].toBool(), true);
    EXPECT_EQ(view.value("properties")["tracking"].toBool(true), false);
    const auto inner = view.value("subviews").toArray().at(0).toObject();
    EXPECT_EQ(inner.value("class").toString(), "UILabel");
    EXPECT_EQ(inner.value("frame").toArray(), (QJsonArray{5, 6, 70, 20}));
    EXPECT_EQ(inner.value("screenFrame").toArray(), (QJsonArray{25, 106, 70, 20}));
    EXPECT_EQ(inner.value("properties")["text"].toString(), "Text");
}

TEST_F(DriverCommandsTest, ViewsTellsOfSubclassesAndHiddenOnesToo) {
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 100, 200, 44), "Apply", presses);
    button->peer().setHidden(true);
    const auto views = ask("views UIView").value("views").toArray();
    ASSERT_EQ(views.size(), 2);
    EXPECT_EQ(views[0]["class"].toString(), "UIWindow");
    EXPECT_EQ(views[1]["class"].toString(), "UIControl");
    EXPECT_TRUE(views[1]["hidden"].toBool());
}

TEST_F(DriverCommandsTest, ViewsTellsWhatIsShownWhileItIsAnimated) {
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 100, 200, 44), "Apply", presses);
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None, [&button] { button->setAlpha(0.5); }, {});
    static_cast<void>(ask("advance 0.5"));
    const auto view = ask("views UIControl").value("views").toArray().at(0).toObject();
    EXPECT_EQ(view.value("alpha").toDouble(), 0.5);
    EXPECT_NEAR(view.value("layer")["shown"]["opacity"].toDouble(), 0.75, 0.001);
    static_cast<void>(ask("settle"));
    const auto after = ask("views UIControl").value("views").toArray().at(0).toObject();
    EXPECT_TRUE(after.value("layer")["shown"].isUndefined());
}

TEST_F(DriverCommandsTest, ViewsRefusesWhatIsNoClassOfViews) {
    const std::string refusal = "there is no class of views of that name";
    EXPECT_EQ(refusalOf("views NoSuchView"), refusal);
    EXPECT_EQ(refusalOf("views NSObject"), refusal);
    EXPECT_EQ(refusalOf("views \"\""), refusal);
}

TEST_F(DriverCommandsTest, ScreenTellsOfTheHomeScreen) {
    const auto told = ask("screen");
    EXPECT_EQ(told.value("app").toString(), "home");
    EXPECT_TRUE(told.value("page").isNull());
    EXPECT_TRUE(told.value("navigation").isNull());
    EXPECT_EQ(told.value("rows").toArray(), QJsonArray());
    EXPECT_EQ(told.value("presented").toArray(), QJsonArray());
    EXPECT_GT(application_.refreshes_, 0);
}

TEST_F(DriverCommandsTest, TheApplicationIsAskedToGoAbout) {
    static_cast<void>(ask("open"));
    static_cast<void>(ask("open \"Other Pane\""));
    static_cast<void>(ask("back"));
    static_cast<void>(ask("relaunch"));
    EXPECT_EQ(application_.asked_,
              (std::vector<std::string>{"open -", "open Other Pane", "back", "relaunch"}));
    application_.refusal_ = "it is on fire";
    EXPECT_EQ(refusalOf("open"), "it is on fire");
    EXPECT_EQ(refusalOf("back"), "it is on fire");
    EXPECT_EQ(refusalOf("relaunch"), "it is on fire");
}

TEST_F(DriverCommandsTest, SetNeedsAPageWithRows) {
    EXPECT_EQ(refusalOf("set kEnabled true"), "the page in front has no rows");
}

TEST_F(DriverCommandsTest, WhatTheDeviceLacksIsSaid) {
    EXPECT_EQ(refusalOf("type hello"), "nothing on the screen takes text");
    EXPECT_EQ(refusalOf("key return"), "nothing on the screen takes text");
    EXPECT_EQ(refusalOf("pick /a /b"), "no picker is presented");
    EXPECT_EQ(refusalOf("pick-cancel"), "no picker is presented");
    EXPECT_EQ(refusalOf("swipe-down"), "no sheet is presented");
}

} // namespace
