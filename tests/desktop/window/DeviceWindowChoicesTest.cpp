// Menus and alerts for somebody at the keyboard.

#include "DesktopImage.h"
#include "RectGeometry.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UIMenu.h"
#include "WindowFixture.h"
#include "accessibility/AccessibilityElement.h"
#include "controls/UISliderPeer.h"
#include "navigation/UINavigationControllerPeer.h"
#include "scrolling/UIScrollViewPeer.h"

namespace {

using Texts = std::vector<std::string>;

class DeviceWindowChoicesTest : public WindowFixture {
protected:
    explicit DeviceWindowChoicesTest(const TestDevice::Settings& settings = {}) : WindowFixture(settings) {
        page->navigationItem().setRightBarButtonItems({UIBarButtonItem::initWithImage(
            UIImage::systemImageNamed("gear"),
            UIMenu::menuWithTitle("", {menuAction("Apply"), menuAction("Reset")}))});
        const auto navigation = make<UINavigationController>();
        peerOf<UINavigationControllerPeer>(*navigation).push(page, false);
        show(navigation);
        settle();
    }

    Ref<UIAction> menuAction(const std::string& title) {
        return UIAction::actionWithTitle(title, nullptr, std::nullopt,
                                         [this, title](UIAction&) { chosen.push_back(title); });
    }

    void ask(const std::vector<std::pair<std::string, UIAlertActionStyle>>& buttons) {
        const auto alert =
            UIAlertController::alertControllerWithTitle("Sure?", "", UIAlertControllerStyle::Alert);
        for (const auto& [title, style] : buttons)
            alert->addAction(UIAlertAction::actionWithTitle(
                title, style, [this, title = title](UIAlertAction&) { chosen.push_back(title); }));
        page->presentViewController(alert, true, {});
        settle();
        run();
    }

    /// Titled by their numbers from 1 on, and one that cancels.
    void askWithButtons(int count) {
        std::vector<std::pair<std::string, UIAlertActionStyle>> buttons;
        for (auto number = 1; number <= count; ++number)
            buttons.emplace_back(std::to_string(number), UIAlertActionStyle::Default);
        buttons.emplace_back("Cancel", UIAlertActionStyle::Cancel);
        ask(buttons);
    }

    void openMenu() {
        for (auto steps = 0; steps < 5 && focused() != "gear"; ++steps)
            press(Qt::Key_Tab);
        key(Qt::Key_Space);
        ASSERT_NE(screen.presentations().top(), nullptr);
        ASSERT_EQ(screen.presentations().top()->kind(), "menu");
    }

    void key(Qt::Key key) {
        press(key);
        settle();
        run();
    }

    [[nodiscard]] std::string focused() {
        const auto view = shown.focusedView();
        return view ? AccessibilityElement::of(*view).label : "";
    }

    /// Of many choices, which do not all have room.
    void expectThe35thIsSeenAndChosen() {
        EXPECT_EQ(focused(), "35");
        const auto panel = screenFrame(screen.presentations().top()->shownView());
        const auto frame = screen.presentations().top()->actions()[34].frame;
        EXPECT_GT(frame.origin.y, panel.origin.y);
        EXPECT_LE(CGRectGetMaxY(frame), CGRectGetMaxY(panel));
        key(Qt::Key_Space);
        EXPECT_EQ(chosen, Texts{"35"});
    }

    Texts chosen;
    const Ref<UIViewController> page = make<UIViewController>();
};

class RightToLeftWindowTest : public DeviceWindowChoicesTest {
protected:
    RightToLeftWindowTest() : DeviceWindowChoicesTest({.locale = "ar_EG"}) {}
};

} // namespace

TEST_F(DeviceWindowChoicesTest, TabBringsTheButtonsOfALongAlertIntoSight) {
    askWithButtons(40);
    for (auto steps = 0; steps < 35; ++steps)
        press(Qt::Key_Tab);
    expectThe35thIsSeenAndChosen();
}

TEST_F(DeviceWindowChoicesTest, ReturnChoosesThePreferredButtonWhereverItIsScrolled) {
    askWithButtons(40);
    key(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts{"Cancel"});
}

TEST_F(RightToLeftWindowTest, TheLeftArrowLeadsOn) {
    ask({{"Reset", UIAlertActionStyle::Destructive}, {"Cancel", UIAlertActionStyle::Cancel}});
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), "Cancel");
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), "Reset");
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "Cancel");
}

TEST_F(RightToLeftWindowTest, TheLeftArrowMakesASlidersValueGreater) {
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(20, 400, 300, 34));
    auto& peer = peerOf<UISliderPeer>(*slider);
    peer.setAccessibility(
        {.label = "Slider", .value = {}, .role = AccessibilityRole::Slider, .isElement = true});
    page->view().addSubview(slider);
    settle();
    for (auto steps = 0; steps < 5 && focused() != "Slider"; ++steps)
        press(Qt::Key_Tab);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_DOUBLE_EQ(peer.value(), 0.2);
}

TEST_F(DeviceWindowChoicesTest, TheArrowsGoThroughTheRowsOfAMenu) {
    openMenu();
    Texts stops;
    for (const auto pressed : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
        press(pressed);
        stops.push_back(focused());
    }
    EXPECT_EQ(stops, (Texts{"Apply", "Reset", "Apply", "Reset", "Apply"}));
    key(Qt::Key_Space);
    EXPECT_EQ(chosen, Texts{"Apply"});
    EXPECT_EQ(screen.presentations().top(), nullptr);
}

TEST_F(DeviceWindowChoicesTest, TheArrowsBringTheRowsOfALongMenuIntoSight) {
    std::vector<Ref<UIAction>> actions;
    for (auto number = 1; number <= 40; ++number)
        actions.push_back(menuAction(std::to_string(number)));
    page->navigationItem().setRightBarButtonItems({UIBarButtonItem::initWithImage(
        UIImage::systemImageNamed("gear"), UIMenu::menuWithTitle("", actions))});
    settle();
    openMenu();
    for (auto steps = 0; steps < 35; ++steps)
        press(Qt::Key_Down);
    expectThe35thIsSeenAndChosen();
}

TEST_F(DeviceWindowChoicesTest, ReturnChoosesNothingInAMenuThatTheKeyboardIsNotAt) {
    openMenu();
    key(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts());
    EXPECT_NE(screen.presentations().top(), nullptr);
}

TEST_F(DeviceWindowChoicesTest, ReturnChoosesThePreferredButtonOfAnAlert) {
    ask({{"Reset", UIAlertActionStyle::Destructive}, {"Cancel", UIAlertActionStyle::Cancel}});
    key(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts{"Cancel"});
    ask({{"OK", UIAlertActionStyle::Default}});
    key(Qt::Key_Enter);
    EXPECT_EQ(chosen, (Texts{"Cancel", "OK"}));
}

TEST_F(DeviceWindowChoicesTest, ReturnChoosesNothingOfEqualButtons) {
    ask({{"One", UIAlertActionStyle::Default}, {"Other", UIAlertActionStyle::Default}});
    key(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts());
}

TEST_F(DeviceWindowChoicesTest, TheButtonThatTheKeyboardIsAtGoesBeforeThePreferredOne) {
    ask({{"Reset", UIAlertActionStyle::Destructive}, {"Cancel", UIAlertActionStyle::Cancel}});
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "Cancel");
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "Reset");
    key(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts{"Reset"});
}

TEST_F(DeviceWindowChoicesTest, ATitleIsNoStop) {
    page->peer().setTitle("Title");
    settle();
    Texts stops;
    for (auto steps = 0; steps < 3; ++steps) {
        press(Qt::Key_Tab);
        stops.push_back(focused());
    }
    EXPECT_EQ(stops, (Texts{"gear", "First", "Second"}));
}

TEST_F(DeviceWindowChoicesTest, KeysScrollWhatIsOnlyRead) {
    const auto text = makeWith<UIScrollView>(&UIScrollView::initWithFrame, CGRectMake(0, 0, 390, 844));
    auto& scroll = peerOf<UIScrollViewPeer>(*text);
    scroll.setContentSize({390, 3000});
    page->view().addSubview(text);
    settle();
    const auto top = scroll.contentOffset().y;
    const auto scrolledBy = [&](Qt::Key pressed) {
        const auto before = scroll.contentOffset().y;
        press(pressed);
        return scroll.contentOffset().y - before;
    };
    EXPECT_EQ(scrolledBy(Qt::Key_Down), 48);
    EXPECT_EQ(scrolledBy(Qt::Key_PageDown), 422);
    EXPECT_EQ(scrolledBy(Qt::Key_Up), -48);
    EXPECT_EQ(scrolledBy(Qt::Key_PageUp), -422);
    EXPECT_EQ(scroll.contentOffset().y, top);
}
