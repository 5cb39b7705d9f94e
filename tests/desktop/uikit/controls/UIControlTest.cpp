#include "ObjectiveC/Class.h"
#include "screen/TouchFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/RecordingViews.h"

namespace {

using namespace std::chrono_literals;

/// A target of messages with no, one and two parameters.
class Target final : public NSObject {
public:
    void plain() { heard.emplace_back("plain"); }

    void withSender(const Ref<NSObject>& sender) {
        heard.emplace_back(sender == control ? "sender" : "somebody else");
    }

    void withSenderAndEvent(const Ref<NSObject>& sender, const Ref<NSObject>& event) {
        heard.emplace_back(sender == control && event ? "sender and event" : "sender alone");
    }

    void dropControl() { control = nullptr; }

    Ref<UIControl> control;
    std::vector<std::string> heard;
};

const Class targetClass = Class::define<Target>(
    "UIControlTestTarget",
    {method<"plain", &Target::plain>(), method<"withSender:", &Target::withSender>(),
     method<"withSender:event:", &Target::withSenderAndEvent>(), method<"drop", &Target::dropControl>()});

/// A control of 100 x 40 points at (100, 200).
class UIControlTest : public TouchFixture {
protected:
    UIControlTest() {
        control->setFrame(CGRectMake(100, 200, 100, 40));
        window->addSubview(control);
    }

    Ref<RecordingControl> control = make<RecordingControl>(events);
};

TEST_F(UIControlTest, TapGoesDownAndUpInside) {
    tap(150, 220);
    EXPECT_EQ(events, (Events{"begin t", "down th", "end", "up inside"}));
    EXPECT_FALSE(control->isTracking());
}

TEST_F(UIControlTest, TouchBeginsOnlyWithinTheBounds) {
    for (const auto& [x, y] : {CGPoint{99, 220}, CGPoint{200, 220}, CGPoint{150, 199}, CGPoint{150, 240}})
        tap(x, y);
    EXPECT_EQ(events, Events());
}

TEST_F(UIControlTest, FingerThatLeavesAndReturnsIsTold) {
    down(150, 220);
    move(160, 220);
    move(280, 220);
    move(290, 220);
    move(160, 220);
    up(160, 220);
    EXPECT_EQ(events, (Events{"begin t", "down th", "continue th", "drag inside th", "continue th",
                              "drag exit t", "drag outside t", "continue t", "drag outside t", "continue t",
                              "drag enter th", "drag inside th", "end", "up inside"}));
}

TEST_F(UIControlTest, InsideReachesSeventyPointsBeyondTheEdges) {
    struct Case {
        CGPoint place;
        bool inside = false;
    };

    for (const auto& [place, inside] :
         {Case{{30, 220}, true}, Case{{29.9, 220}, false}, Case{{269.9, 220}, true}, Case{{270, 220}, false},
          Case{{150, 130}, true}, Case{{150, 129.9}, false}, Case{{150, 309.9}, true},
          Case{{150, 310}, false}}) {
        down(150, 220);
        move(place.x, place.y);
        EXPECT_EQ(control->controlPeer().isHighlighted(), inside) << place.x << " " << place.y;
        up(place.x, place.y);
        EXPECT_EQ(takeEvents().back(), inside ? "up inside" : "up outside") << place.x << " " << place.y;
    }
}

TEST_F(UIControlTest, FingerLiftedOutsideDoesNotCountAsInside) {
    down(150, 220);
    up(300, 220);
    EXPECT_EQ(events, (Events{"begin t", "down th", "end", "up outside"}));
}

TEST_F(UIControlTest, ControlThatDoesNotBeginHearsNoMore) {
    control->begins = false;
    down(150, 220);
    EXPECT_FALSE(control->isTracking());
    move(155, 220);
    up(155, 220);
    EXPECT_EQ(events, Events{"begin t"});
}

TEST_F(UIControlTest, ControlThatDoesNotContinueHearsNoMore) {
    control->continues = false;
    down(150, 220);
    move(155, 220);
    EXPECT_FALSE(control->controlPeer().isHighlighted());
    move(156, 220);
    up(156, 220);
    EXPECT_EQ(events, (Events{"begin t", "down th", "continue th"}));
}

TEST_F(UIControlTest, WhateverTakesTheTouchAwayCancels) {
    const Events cancelled{"begin t", "down th", "cancel", "touch cancel"};
    const std::vector<std::function<void()>> ways{
        [this] { cancel(); },
        [this] { control->controlPeer().setEnabled(false); },
        [this] { control->setUserInteractionEnabled(false); },
        [this] { control->peer().setHidden(true); },
        [this] { window->peer().setHidden(true); },
        [this] { control->peer().removeFromSuperview(); },
        [this] { screen.removeWindow(*window); },
        [this] { TouchDispatcher::cancelTouchesIn(*window); },
        [this] { down(10, 10); },
    };
    for (std::size_t way = 0; way < ways.size(); ++way) {
        control->controlPeer().setEnabled(true);
        control->setUserInteractionEnabled(true);
        control->peer().setHidden(false);
        window->peer().setHidden(false);
        window->addSubview(control);
        if (screen.windows().empty())
            screen.addWindow(window);
        down(150, 220);
        ways[way]();
        EXPECT_FALSE(control->isTracking()) << way;
        move(155, 220);
        up(155, 220);
        EXPECT_EQ(takeEvents(), cancelled) << way;
    }
}

TEST_F(UIControlTest, WhoIsToldOfTheCancelMayTouchTheControlAnew) {
    auto cancels = 0;
    control->controlPeer().addHandler(UIControlEvents::TouchCancel, [&] {
        if (++cancels == 1)
            down(155, 220);
    });
    down(150, 220);
    cancel();
    EXPECT_TRUE(control->isTracking());
    EXPECT_EQ(takeEvents(), (Events{"begin t", "down th", "cancel", "touch cancel", "begin t", "down th"}));
    up(155, 220);
    EXPECT_EQ(takeEvents(), (Events{"end", "up inside"}));
}

TEST_F(UIControlTest, WhoIsToldOfTheCancelMayTakeTheControlAwayOrPutItWhereItWas) {
    control->controlPeer().addHandler(UIControlEvents::TouchCancel,
                                      [this] { control->peer().removeFromSuperview(); });
    down(150, 220);
    cancel();
    EXPECT_EQ(control->peer().superview(), nullptr);
    window->addSubview(control);
    control->controlPeer().addHandler(UIControlEvents::TouchCancel, [this] { window->addSubview(control); });
    down(150, 220);
    control->peer().removeFromSuperview();
    EXPECT_EQ(control->peer().superview(), nullptr) << "the removal goes on";
    window->addSubview(control);
    takeEvents();
    tap(150, 220);
    EXPECT_EQ(takeEvents(), (Events{"begin t", "down th", "end", "up inside"}));
}

TEST_F(UIControlTest, DisabledControlSwallowsTouches) {
    const auto behind = make<RecordingView>("behind", events);
    behind->setFrame(CGRectMake(0, 0, 390, 844));
    behind->addSubview(control);
    window->addSubview(behind);
    control->controlPeer().setEnabled(false);
    tap(150, 220);
    EXPECT_EQ(events, Events());
}

TEST_F(UIControlTest, SubviewsOfAControlHandItTheirTouches) {
    const auto inner = make<UIView>();
    inner->setFrame(CGRectMake(10, 10, 20, 20));
    control->addSubview(inner);
    tap(115, 215);
    EXPECT_EQ(events, (Events{"begin t", "down th", "end", "up inside"}));
}

TEST_F(UIControlTest, ControlIsCancelledWhenTheTouchedViewWithinItGoes) {
    const auto inner = make<UIView>();
    inner->setFrame(CGRectMake(10, 10, 20, 20));
    control->addSubview(inner);
    down(115, 215);
    inner->peer().removeFromSuperview();
    EXPECT_EQ(events, (Events{"begin t", "down th", "cancel", "touch cancel"}));
}

TEST_F(UIControlTest, MessagesCarryWhatTheirSelectorsTake) {
    const auto target = make<Target>();
    target->control = control;
    control->addTarget(*target, "plain", UIControlEvents::TouchUpInside);
    control->addTarget(*target, "withSender:", UIControlEvents::TouchUpInside | UIControlEvents::TouchCancel);
    control->addTarget(*target, "withSender:event:", UIControlEvents::TouchUpInside);
    tap(150, 220);
    EXPECT_EQ(target->heard, (std::vector<std::string>{"plain", "sender", "sender and event"}));
    target->heard.clear();
    down(150, 220);
    cancel();
    EXPECT_EQ(target->heard, std::vector<std::string>{"sender"});
}

TEST_F(UIControlTest, EventsSentByCodeReachTheirTargetsOnly) {
    const auto target = make<Target>();
    control->addTarget(*target, "plain", UIControlEvents::ValueChanged);
    control->addTarget(*target, "withSender:", UIControlEvents::TouchDown);
    control->sendActionsForControlEvents(UIControlEvents::ValueChanged);
    EXPECT_EQ(target->heard, std::vector<std::string>{"plain"});
    EXPECT_EQ(events, Events{"value changed"});
}

TEST_F(UIControlTest, TargetIsNotKeptAlive) {
    auto target = make<Target>();
    const Weak<Target> watched(target);
    control->addTarget(*target, "plain", UIControlEvents::TouchDown);
    target = nullptr;
    EXPECT_FALSE(watched.strong());
    tap(150, 220);
}

TEST_F(UIControlTest, ControlMayEndInItsAction) {
    const auto target = make<Target>();
    control->peer().removeFromSuperview();
    control = nullptr;
    target->control = make<UIControl>();
    target->control->setFrame(CGRectMake(0, 0, 50, 50));
    window->addSubview(target->control);
    const Weak<UIControl> watched(target->control);
    peerOf<UIControlPeer>(*target->control).addHandler(UIControlEvents::TouchDown, [&] {
        watched.strong()->peer().removeFromSuperview();
    });
    target->control->addTarget(*target, "drop", UIControlEvents::TouchDown);
    target->control->addTarget(*target, "plain", UIControlEvents::TouchDown);
    down(20, 20);
    EXPECT_EQ(target->heard, std::vector<std::string>{"plain"});
    EXPECT_FALSE(watched.strong());
    up(20, 20);
}

TEST_F(UIControlTest, HandlersMayBeAddedInAHandler) {
    auto calls = 0;
    control->controlPeer().addHandler(UIControlEvents::TouchDown, [&] {
        control->controlPeer().addHandler(UIControlEvents::TouchDown, [&] { ++calls; });
    });
    tap(150, 220);
    EXPECT_EQ(calls, 0);
    tap(150, 220);
    EXPECT_EQ(calls, 1);
}

TEST_F(UIControlTest, TellsThatItIsAButton) {
    EXPECT_EQ(control->peer().accessibility().role, AccessibilityRole::Button);
    EXPECT_TRUE(control->peer().accessibility().isElement);
}

} // namespace
