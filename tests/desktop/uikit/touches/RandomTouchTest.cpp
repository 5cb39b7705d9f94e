#include "AnimationGroup.h"
#include "screen/TouchFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "touches/PanGestureRecognizer.h"
#include "touches/ScreenEdgePanGestureRecognizer.h"
#include "touches/TapGestureRecognizer.h"
#include "views/RecordingViews.h"

#include <random>

namespace {

/// Random touches on a tree of views, controls, scroll views and recognisers that is changed, shown in motion
/// and taken apart all the while.
class RandomTouchTest : public TouchFixture, public testing::WithParamInterface<unsigned> {
protected:
    static constexpr auto steps = 3000;

    [[nodiscard]] unsigned below(unsigned end) {
        return std::uniform_int_distribution<unsigned>(0, end - 1)(random);
    }

    [[nodiscard]] double within(double end) { return std::uniform_real_distribution<double>(0, end)(random); }

    /// Some view of the tree, the window now and then.
    [[nodiscard]] Ref<UIView> someView() {
        Ref<UIView> view = window;
        while (!view->peer().subviews().empty() && below(5) != 0)
            view = view->peer().subviews()[below(static_cast<unsigned>(view->peer().subviews().size()))];
        return view;
    }

    Ref<UIView> makeView() {
        switch (below(4)) {
        case 0:
            return makeScrollView();
        case 1:
        case 2:
            return makeControl();
        default:
            return make<RecordingView>("view", events);
        }
    }

    Ref<UIView> makeScrollView() {
        const auto scroll = make<UIScrollView>();
        peerOf<UIScrollViewPeer>(*scroll).setContentSize({within(800), within(2000)});
        peerOf<UIScrollViewPeer>(*scroll).addScrollHandler([this] {
            ++scrolls;
            if (below(40) == 0)
                disturb();
        });
        return scroll;
    }

    Ref<UIView> makeControl() {
        auto control = make<RecordingControl>(events);
        control->begins = below(8) != 0;
        control->continues = below(8) != 0;
        for (auto bit = 0U; bit < 9; ++bit) {
            control->controlPeer().addHandler(static_cast<UIControlEvents>(1U << bit), [this] {
                if (below(10) == 0)
                    disturb();
            });
        }
        return control;
    }

    Ref<GestureRecognizer> makeRecognizer() {
        const auto kind = below(4);
        if (kind == 0)
            return make<PanGestureRecognizer>();
        if (kind == 1)
            return make<ScreenEdgePanGestureRecognizer>();
        return make<TapGestureRecognizer>();
    }

    void addView() { addViewTo(*someView()); }

    void addViewTo(UIView& superview) {
        const auto view = makeView();
        view->setFrame(CGRectMake(within(200), within(300), 50 + within(300), 50 + within(500)));
        superview.addSubview(view);
    }

    /// Keeps the window from running empty, or dead.
    void restock() {
        window->peer().setHidden(false);
        window->setUserInteractionEnabled(true);
        while (window->peer().subviews().size() < 5)
            addViewTo(*window);
    }

    void addRecognizer() {
        const auto view = someView();
        const auto recognizer = makeRecognizer();
        recognizer->addHandler([this] {
            ++gestures;
            if (below(6) == 0)
                disturb();
        });
        view->peer().addGestureRecognizer(recognizer);
    }

    /// Changes something in the tree, also in the midst of a touch's delivery.
    void disturb() {
        const auto view = someView();
        const auto remove = [&] {
            if (view != window)
                view->peer().removeFromSuperview();
        };
        switch (below(10)) {
        case 0:
        case 1:
            remove();
            return;
        case 2:
            view->peer().setHidden(below(3) == 0);
            return;
        case 3:
            view->setUserInteractionEnabled(below(3) != 0);
            return;
        case 4:
            if (auto* const control = dynamic_cast<RecordingControl*>(view.get()))
                control->controlPeer().setEnabled(below(3) != 0);
            return;
        case 5:
            if (auto* const scroll = dynamic_cast<UIScrollView*>(view.get()))
                peerOf<UIScrollViewPeer>(*scroll).setContentOffset({0, within(500)}, below(2) == 0);
            return;
        case 6:
            AnimationGroup::run({.duration = std::chrono::milliseconds(below(400))}, remove, {});
            return;
        case 7:
            AnimationGroup::run(
                {.duration = std::chrono::milliseconds(below(400))},
                [&] { view->setFrame(CGRectMake(within(200), within(300), 300, 300)); },
                [this](bool /*finished*/) { addView(); });
            return;
        default:
            addView();
            break;
        }
    }

    void touchSomehow() {
        const CGPoint place{below(4) == 0 ? within(20) : within(390), within(844)};
        const auto phase = below(20);
        if (phase == 0)
            finger.touch(TouchPhase::Cancelled, place);
        else if (!finger.isTouching() || phase == 1)
            finger.touch(TouchPhase::Began, lastPlace = place);
        else if (phase < 7)
            finger.touch(TouchPhase::Ended, lastPlace);
        else
            finger.touch(TouchPhase::Moved,
                         lastPlace = {lastPlace.x + within(24) - 12, lastPlace.y + within(24) - 12});
    }

    std::mt19937 random{GetParam()};
    CGPoint lastPlace;
    int gestures = 0;
    int scrolls = 0;
};

TEST_P(RandomTouchTest, NothingIsLeftBehind) {
    auto touches = 0;
    for (auto step = 0; step < steps; ++step) {
        restock();
        const auto what = below(20);
        if (what == 0)
            disturb();
        else if (what == 1)
            addRecognizer();
        else if (what < 4)
            addView();
        else if (what < 8)
            advance(std::chrono::milliseconds(below(200)));
        else
            touchSomehow(), ++touches;
        if (what == 2)
            screen.layoutIfNeeded();
    }
    EXPECT_GT(touches, steps / 3);
    EXPECT_GT(events.size(), 100U) << "the touches reach views and controls";
    EXPECT_GT(gestures, 10) << "and recognisers";
    EXPECT_GT(scrolls, 20) << "and scroll views";
    cancel();
    EXPECT_FALSE(finger.isTouching());
    settle(); // what ends an animation may add a view
    for (const auto& view : std::vector(window->peer().subviews()))
        view->peer().removeFromSuperview();
    settle();
    EXPECT_EQ(window->peer().hitTest({100, 100}), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTouchTest, testing::Range(1U, 9U));

} // namespace
