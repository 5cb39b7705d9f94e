#include "UIKit/UIAlertController.h"
#include "presentation/PresentationFixture.h"
#include "scrolling/UIScrollViewPeer.h"

#include <random>

namespace {

/// Random presenting, dismissing and fingers, with the application ended and started anew all the while.
class RandomPresentationTest : public PresentationFixture, public testing::WithParamInterface<unsigned> {
protected:
    static constexpr auto steps = 1500;

    [[nodiscard]] unsigned below(unsigned end) {
        return std::uniform_int_distribution<unsigned>(0, end - 1)(random);
    }

    [[nodiscard]] CGPoint somewhere() {
        return {static_cast<double>(below(390)), static_cast<double>(below(844))};
    }

    /// What stands highest, or something below that.
    [[nodiscard]] Ref<UIViewController> someController() {
        Ref<UIViewController> found = navigation;
        while (below(6) != 0) {
            const auto next = found->peer().ownPresentation();
            if (!next || !next->presented())
                break;
            found = next->presented();
        }
        return found;
    }

    Ref<UIViewController> makeController() {
        if (below(3) == 0)
            return makeAlert();
        auto sheet = page("S");
        sheet->setModalInPresentation(below(3) == 0);
        if (below(2) == 0)
            addScroll(*sheet);
        if (below(6) == 0)
            last = sheet;
        return sheet;
    }

    static void addScroll(UIViewController& sheet) {
        const auto scroll = make<UIScrollView>();
        scroll->setFrame(CGRectMake(0, 100, 390, 600));
        peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 2000});
        sheet.view().addSubview(scroll);
    }

    Ref<UIViewController> makeAlert() {
        auto alert =
            UIAlertController::alertControllerWithTitle("Title", "Message", UIAlertControllerStyle::Alert);
        for (auto count = below(4); count > 0; --count)
            alert->addAction(UIAlertAction::actionWithTitle(
                "B", count == 2 ? UIAlertActionStyle::Cancel : UIAlertActionStyle::Default,
                [this](UIAlertAction&) { completed(); }));
        return alert;
    }

    void completed() {
        ++completions;
        if (below(4) == 0)
            step();
    }

    void presentSomething() {
        const auto again = last && below(4) == 0;
        const auto controller = again ? Ref<UIViewController>(last) : makeController();
        const auto presenter = someController();
        auto calls = std::make_shared<int>(0);
        presenter->presentViewController(controller, below(3) != 0, [this, calls] {
            EXPECT_EQ(++*calls, 1);
            completed();
        });
    }

    void dismissSomething() {
        auto calls = std::make_shared<int>(0);
        const auto controller = someController();
        controller->dismissViewControllerAnimated(below(3) != 0, [this, calls] {
            EXPECT_EQ(++*calls, 1);
            completed();
        });
    }

    void moveFinger() {
        switch (below(4)) {
        case 0:
            finger.touch(TouchPhase::Began, somewhere());
            break;
        case 1:
            finger.touch(TouchPhase::Ended, somewhere());
            break;
        default:
            finger.touch(TouchPhase::Moved, somewhere());
        }
    }

    void disturb() {
        const auto kept = window;
        switch (below(7)) {
        case 0:
            kept->setRootViewController(nullptr);
            navigation = make<UINavigationController>();
            peer().push(page("A"), false);
            kept->setRootViewController(navigation);
            break;
        case 1:
            screen.removeWindow(*kept);
            screen.addWindow(kept);
            break;
        case 2:
            screen.setSize(below(2) == 0 ? Screen::phoneSize : CGSize{430, 932});
            break;
        case 3:
            screen.setKeyboardHeight(below(2) == 0 ? 0 : 336);
            break;
        case 4:
            screen.setStyle(below(2) == 0 ? UserInterfaceStyle::Dark : UserInterfaceStyle::Light);
            break;
        case 5:
            finger.touch(TouchPhase::Cancelled, {});
            break;
        default:
            if (auto* const presented = top())
                presented->dismissPresented();
        }
    }

    void step() {
        const auto choice = below(100);
        if (choice < 18)
            presentSomething();
        else if (choice < 28)
            dismissSomething();
        else if (choice < 65)
            moveFinger();
        else if (choice < 70)
            disturb();
        else if (choice < 72)
            settle();
        else
            advance(std::chrono::milliseconds(below(200)));
    }

    std::mt19937 random{GetParam()};
    Ref<UIViewController> last; ///< one that is presented over and over
    int completions = 0;
};

} // namespace

TEST_P(RandomPresentationTest, alwaysEndsInOrder) {
    for (auto count = 0; count < steps; ++count)
        step();
    settle();
    EXPECT_GT(completions, 20);
    finger.touch(TouchPhase::Cancelled, {});
    navigation->dismissViewControllerAnimated(false, {});
    settle();
    while (navigation->presentedViewController()) { // what the last completions have presented
        navigation->dismissViewControllerAnimated(false, {});
        settle();
    }
    EXPECT_EQ(screen.presentations().top(), nullptr);
    EXPECT_EQ(window->peer().subviews().size(), 1U);
    EXPECT_EQ(screenFrame(navigation->view()), window->bounds());
    EXPECT_DOUBLE_EQ(navigation->view().layer().cornerRadius(), 0);
    last = nullptr;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPresentationTest, testing::Range(0U, 10U));
