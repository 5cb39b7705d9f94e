#include "screen/TouchDispatcher.h"

#include "menus/DesktopMenu.h"
#include "menus/MenuPresentation.h"
#include "screen/TouchFixture.h"
#include "touches/PanGestureRecognizer.h"
#include "touches/TapGestureRecognizer.h"
#include "views/RecordingViews.h"

#include <algorithm>
#include <functional>

namespace {

/// A view "outer" of 300 x 300 points at (0, 100) with a view "inner" of 100 x 100 in its corner.
class TouchDispatcherTest : public TouchFixture {
protected:
    TouchDispatcherTest() {
        outer->setFrame(CGRectMake(0, 100, 300, 300));
        inner->setFrame(CGRectMake(0, 0, 100, 100));
        window->addSubview(outer);
        outer->addSubview(inner);
    }

    template <class Recognizer>
    Ref<Recognizer> watch(UIView& view, const std::string& name) {
        const auto recognizer = make<Recognizer>();
        record(*recognizer, name, events);
        view.peer().addGestureRecognizer(recognizer);
        return recognizer;
    }

    Ref<RecordingView> outer = make<RecordingView>("outer", events);
    Ref<RecordingView> inner = make<RecordingView>("inner", events);
};

TEST_F(TouchDispatcherTest, TouchStaysWithTheViewItBeganIn) {
    down(50, 150);
    move(200, 150);
    up(200, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner moved", "inner ended"}));
}

TEST_F(TouchDispatcherTest, TellsWhetherTheFingerIsDown) {
    EXPECT_FALSE(finger.isTouching());
    down(5, 5);
    EXPECT_TRUE(finger.isTouching()) << "though there is no view";
    up(5, 5);
    EXPECT_FALSE(finger.isTouching());
    down(50, 150);
    cancel();
    EXPECT_FALSE(finger.isTouching());
}

TEST_F(TouchDispatcherTest, FingerThatIsNotDownIsIgnored) {
    move(50, 150);
    up(50, 150);
    cancel();
    EXPECT_EQ(events, Events());
}

TEST_F(TouchDispatcherTest, SecondBeginCancelsTheFirst) {
    down(50, 150);
    down(200, 150);
    up(200, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled", "outer began", "outer ended"}));
}

TEST_F(TouchDispatcherTest, ViewThatIsRemovedLosesTheTouch) {
    down(50, 150);
    takeEvents();
    inner->peer().removeFromSuperview();
    EXPECT_EQ(events, Events{"inner cancelled"});
    EXPECT_TRUE(finger.isTouching()) << "the finger is still there";
    up(50, 150);
    EXPECT_EQ(events, Events{"inner cancelled"});
}

TEST_F(TouchDispatcherTest, ViewWhoseSuperviewEndsLosesTheTouch) {
    down(50, 150);
    outer->peer().removeFromSuperview();
    outer = nullptr;
    move(51, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled"}));
}

TEST_F(TouchDispatcherTest, ViewMayEndWhileTouched) {
    const auto tap = watch<TapGestureRecognizer>(*inner, "tap");
    down(50, 150);
    inner->peer().removeFromSuperview();
    inner = nullptr;
    EXPECT_EQ(tap->view(), nullptr);
    move(51, 150);
    up(51, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled"}));
}

TEST_F(TouchDispatcherTest, RecognisedGestureTakesTheTouchFromTheView) {
    const auto tap = watch<TapGestureRecognizer>(*outer, "tap");
    down(50, 150);
    up(50, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled", "tap ended"}));
}

TEST_F(TouchDispatcherTest, InnermostOfTwoTapsWins) {
    const auto outerTap = watch<TapGestureRecognizer>(*outer, "outer tap");
    const auto innerTap = watch<TapGestureRecognizer>(*inner, "inner tap");
    tap(50, 150);
    EXPECT_EQ(takeEvents(), (Events{"inner began", "inner cancelled", "inner tap ended"}));
    tap(200, 150);
    EXPECT_EQ(events, (Events{"outer began", "outer cancelled", "outer tap ended"}));
}

TEST_F(TouchDispatcherTest, OneGestureExcludesTheOthers) {
    const auto pan = watch<PanGestureRecognizer>(*outer, "pan");
    const auto tap = watch<TapGestureRecognizer>(*inner, "tap");
    down(50, 150);
    move(60, 150);
    move(50, 150);
    up(50, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled", "pan began", "pan changed", "pan ended"}));
    EXPECT_EQ(pan->state(), GestureRecognizer::State::Possible) << "ready for the next";
}

TEST_F(TouchDispatcherTest, ControlGoesBeforeATapAroundIt) {
    const auto tapAround = watch<TapGestureRecognizer>(*outer, "tap");
    const auto control = make<RecordingControl>(events);
    control->setFrame(CGRectMake(150, 0, 50, 50));
    outer->addSubview(control);
    tap(160, 110);
    EXPECT_EQ(takeEvents(), (Events{"begin t", "down th", "end", "up inside"}));
    const auto ownTap = watch<TapGestureRecognizer>(*control, "own tap");
    tap(160, 110);
    EXPECT_EQ(events, (Events{"begin t", "down th", "cancel", "touch cancel", "own tap ended"}));
}

TEST_F(TouchDispatcherTest, PanAroundAControlTakesItsTouch) {
    const auto pan = watch<PanGestureRecognizer>(*outer, "pan");
    const auto control = make<RecordingControl>(events);
    control->setFrame(CGRectMake(150, 0, 50, 50));
    outer->addSubview(control);
    down(160, 110);
    move(160, 130);
    EXPECT_EQ(events, (Events{"begin t", "down th", "cancel", "touch cancel", "pan began"}));
}

TEST_F(TouchDispatcherTest, RecogniserOfAViewThatGoesIsCancelled) {
    const auto pan = watch<PanGestureRecognizer>(*inner, "pan");
    down(50, 150);
    move(70, 150);
    takeEvents();
    inner->peer().removeFromSuperview();
    EXPECT_EQ(events, Events{"pan cancelled"});
    move(90, 150);
    EXPECT_EQ(events, Events{"pan cancelled"});
}

TEST_F(TouchDispatcherTest, RecogniserAroundAViewThatGoesGoesOn) {
    const auto pan = watch<PanGestureRecognizer>(*outer, "pan");
    down(50, 150);
    move(70, 150);
    inner->peer().removeFromSuperview();
    takeEvents();
    move(90, 150);
    up(90, 150);
    EXPECT_EQ(events, (Events{"pan changed", "pan ended"}));
}

TEST_F(TouchDispatcherTest, SwitchedOffRecogniserIsCancelledAndFollowsNoMore) {
    const auto pan = watch<PanGestureRecognizer>(*outer, "pan");
    down(50, 150);
    move(70, 150);
    takeEvents();
    pan->setEnabled(false);
    move(90, 150);
    up(90, 150);
    down(50, 150);
    move(90, 150);
    EXPECT_EQ(events, (Events{"pan cancelled", "inner began", "inner moved"}));
}

TEST_F(TouchDispatcherTest, HandlerMayEndTheView) {
    const auto tapped = make<TapGestureRecognizer>();
    tapped->addHandler([this] {
        inner->peer().removeFromSuperview();
        inner = nullptr;
        events.emplace_back("handled");
    });
    inner->peer().addGestureRecognizer(tapped);
    tap(50, 150);
    EXPECT_EQ(events, (Events{"inner began", "inner cancelled", "handled"}));
    EXPECT_EQ(tapped->view(), nullptr);
}

/// A view that writes its touches down, and does something when one is cancelled.
class ReactingView final : public UIView {
public:
    ReactingView(std::vector<std::string>& events, const std::function<void()>& react)
        : UIView(std::make_unique<Peer>(events, react)) {}

private:
    class Peer final : public UIViewPeer {
    public:
        Peer(std::vector<std::string>& events, const std::function<void()>& react)
            : events_(events),
              react_(react) {}

        // UIViewPeer:
        void touchBegan(DesktopTouch& /*touch*/, UIEvent& /*event*/) override {
            events_.emplace_back("began");
        }

        void touchEnded(DesktopTouch& /*touch*/, UIEvent& /*event*/) override {
            events_.emplace_back("ended");
        }

        void touchCancelled(DesktopTouch& /*touch*/, UIEvent& /*event*/) override {
            events_.emplace_back("cancelled");
            react_();
        }

    private:
        std::vector<std::string>& events_;
        const std::function<void()>& react_;
    };
};

class CancelledTouchTest : public TouchFixture {
protected:
    CancelledTouchTest() { put(); }

    /// Puts the view where it is touched, in a window that is shown.
    void put() {
        if (screen.windows().empty())
            screen.addWindow(window);
        view->setFrame(CGRectMake(0, 100, 200, 200));
        view->peer().setHidden(false);
        window->addSubview(view);
    }

    /// How often the view was told of that.
    [[nodiscard]] auto count(const std::string& event) const { return std::ranges::count(events, event); }

    void once(const std::function<void()>& action) {
        react = [this, action] {
            const auto kept = action; // since the next line ends what is being run
            react = [] {};
            kept();
        };
    }

    std::function<void()> react = [] {};
    Ref<ReactingView> view = make<ReactingView>(events, react);
};

TEST_F(CancelledTouchTest, ATouchBroughtByWhoIsToldOfTheCancelledOneGoesOnAlone) {
    once([this] { down(60, 160); });
    down(50, 150);
    down(10, 10);
    EXPECT_EQ(takeEvents(), (Events{"began", "cancelled", "began"})) << "the nested one came last";
    up(60, 160);
    EXPECT_EQ(takeEvents(), Events{"ended"});
    EXPECT_FALSE(finger.isTouching());
    tap(50, 150);
    EXPECT_EQ(events, (Events{"began", "ended"}));
}

TEST_F(CancelledTouchTest, WhateverIsDoneThenEveryTouchIsToldItsEndOnce) {
    const std::vector<std::function<void()>> reactions{
        [this] { down(60, 160); },
        [this] { tap(60, 160); },
        [this] { down(300, 700); },
        [this] { cancel(); },
        [this] { move(60, 160); },
        [this] { up(60, 160); },
        [this] { view->peer().removeFromSuperview(); },
        [this] { view->peer().setHidden(true); },
        [this] { screen.removeWindow(*window); },
        [this] { put(); },
        [this] {
            view->peer().removeFromSuperview();
            put();
            down(60, 160);
        },
        [this] { TouchDispatcher::cancelTouchesIn(*window); },
    };
    const std::vector<std::function<void()>> ways{
        [this] { cancel(); },
        [this] { down(10, 10); },
        [this] { down(70, 170); },
        [this] { view->peer().removeFromSuperview(); },
        [this] { view->setUserInteractionEnabled(false); },
        [this] { screen.removeWindow(*window); },
        [this] { TouchDispatcher::cancelTouchesIn(*window); },
        [this] { move(150, 150); }, // the pan takes it
    };
    const auto pan = make<PanGestureRecognizer>();
    window->peer().addGestureRecognizer(pan);
    for (std::size_t way = 0; way < ways.size(); ++way) {
        for (std::size_t reaction = 0; reaction < reactions.size(); ++reaction) {
            SCOPED_TRACE(std::to_string(way) + " " + std::to_string(reaction));
            once(reactions[reaction]);
            down(50, 150);
            ways[way]();
            up(60, 160);
            cancel();
            EXPECT_EQ(count("began"), count("ended") + count("cancelled"));
            EXPECT_EQ(pan->state(), GestureRecognizer::State::Possible);
            react = [] {};
            view->setUserInteractionEnabled(true);
            put();
            takeEvents();
            tap(50, 150);
            EXPECT_EQ(takeEvents(), (Events{"began", "ended"}));
        }
    }
}

TEST_F(CancelledTouchTest, AMenuMayOpenThen) {
    once([this] {
        const std::vector<Ref<DesktopAction>> actions;
        const auto opened = MenuPresentation::open(make<DesktopMenu>("Menu", actions), *view, {});
        EXPECT_EQ(screen.presentations().top(), opened.get());
    });
    down(50, 150);
    cancel();
    settle();
    tap(50, 150);
    EXPECT_EQ(takeEvents(), (Events{"began", "cancelled"})) << "the menu is in front";
    settle();
    tap(50, 150);
    EXPECT_EQ(takeEvents(), (Events{"began", "ended"})) << "and closed by the tap";
}

} // namespace
