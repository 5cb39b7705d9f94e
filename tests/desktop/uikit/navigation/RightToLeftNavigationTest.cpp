// Pages, bars and alerts where the device's language is read from right to left.

#include "CALayerPeer.h"
#include "DesktopImage.h"
#include "RectGeometry.h"
#include "UIKit/UIAlertController.h"
#include "accessibility/AccessibilityElement.h"
#include "menus/MenuRowView.h"
#include "navigation/NavigationFixture.h"
#include "presentation/Presentation.h"
#include "screen/Compositor.h"
#include "screen/StatusGlyphs.h"
#include "screen/SystemBars.h"

#include <gmock/gmock.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

class RightToLeftNavigationTest : public NavigationFixture {
protected:
    RightToLeftNavigationTest() : NavigationFixture({}, {.locale = "he_IL"}) {}

    /// Where the view's left edge is seen now, on the screen.
    static double shownX(const UIView& view) {
        auto x = 0.0;
        for (const auto* place = &view; place != nullptr; place = place->peer().superview())
            x = place->layer().peer().shownToSuperlayer()(CGPoint{x, 0}).x;
        return x;
    }

    Ref<UIBarButtonItem> done() {
        return UIBarButtonItem::initWithTitle("Done", UIBarButtonItemStyle::Plain, *navigation, "");
    }

    Ref<LoggedPage> a = page("A");
    Ref<LoggedPage> b = page("B");
};

} // namespace

TEST_F(RightToLeftNavigationTest, TheBarBeginsAtTheRight) {
    b->peer().navigationItem().setRightBarButtonItems({done()});
    show({a, b});
    const auto& back = *content().backButton();
    EXPECT_EQ(CGRectGetMaxX(screenFrame(back)), 390);
    const auto& chevron = dynamic_cast<UIImageView&>(*back.peer().subviews()[0]->peer().subviews()[0]);
    EXPECT_EQ(dynamicCast<DesktopImage>(chevron.image())->symbolName(), "chevron.right");
    EXPECT_EQ(CGRectGetMaxX(screenFrame(chevron)), 390 - 8);
    EXPECT_LT(screenFrame(*content().rightButtons()[0]).origin.x, 20);
}

TEST_F(RightToLeftNavigationTest, TheLargeTitleEndsAtTheRightMargin) {
    peer().setPrefersLargeTitles(true);
    show({a});
    const auto& large = *content().peer().subviews()[0];
    EXPECT_NEAR(CGRectGetMaxX(screenFrame(*large.peer().subviews()[0])), 390 - 16, 0.01);
}

TEST_F(RightToLeftNavigationTest, APushedPageComesFromTheLeft) {
    show({a});
    navigation->pushViewController(b, true);
    layOut();
    advance(milliseconds(1));
    EXPECT_LT(shownX(b->view()), -300);
    EXPECT_GE(shownX(a->view()), 0);
    settle();
    EXPECT_EQ(screenFrame(b->view()), screen.bounds());
}

TEST_F(RightToLeftNavigationTest, ThePageThatComesCastsItsShadowToItsRightAndItsTitleComesAlong) {
    show({a});
    navigation->pushViewController(b, true);
    layOut();
    const auto& place = *b->view().peer().superview();
    EXPECT_EQ(place.peer().subviews().front()->frame().origin.x, 390);
    advance(milliseconds(100));
    EXPECT_LT(shownX(content().titleView()), (390 - content().titleView().bounds().size.width) / 2 - 20);
    settle();
    EXPECT_NEAR(shownX(content().titleView()), (390 - content().titleView().bounds().size.width) / 2, 1);
}

TEST_F(RightToLeftNavigationTest, TheShadowOfThePageThatComesDarkensTowardsIt) {
    a->view().setBackgroundColor(UIColor::whiteColor());
    show({a});
    navigation->pushViewController(b, true);
    layOut();
    advance(milliseconds(150));
    const auto edge = shownX(b->view()) + 390;
    ASSERT_LT(edge, 370);
    Compositor compositor(screen);
    const auto picture = compositor.render();
    const auto lightness = [&picture, edge](double beyond) {
        return picture.pixelColor(static_cast<int>((edge + beyond) * 3), 3 * 500).lightness();
    };
    EXPECT_LT(lightness(1), lightness(5));
    EXPECT_LT(lightness(5), lightness(9));
    EXPECT_LE(lightness(9), lightness(11));
    EXPECT_EQ(lightness(11), lightness(15));
}

TEST_F(RightToLeftNavigationTest, ASwipeFromTheRightEdgeGoesBack) {
    show({a, b});
    drag({5, 400}, {275, 400}, 60);
    up({275, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A", "B")) << "the left edge is not the leading one";
    drag({385, 400}, {115, 400}, 60);
    EXPECT_NEAR(shownX(b->view()), -260, 1e-6);
    const auto& backgrounds = peer().bar().subviews();
    EXPECT_NEAR(backgrounds[0]->frame().origin.x, 0, 1e-6) << "of the page that leaves to the left";
    EXPECT_NEAR(backgrounds[1]->frame().origin.x, 130, 1e-6);
    advance(milliseconds(200));
    up({115, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A"));
}

TEST_F(RightToLeftNavigationTest, AFlickToTheLeftIsEnough) {
    show({a, b});
    drag({385, 400}, {285, 400}, 3);
    up({285, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A"));
}

TEST_F(RightToLeftNavigationTest, WhatIsReadFirstIsAtTheRight) {
    b->peer().navigationItem().setRightBarButtonItems({done()});
    show({a, b});
    std::vector<std::string> labels;
    for (const auto& element : AccessibilityElement::allIn(*window))
        labels.push_back(element.label);
    EXPECT_THAT(labels, ElementsAre("A", "B", "Done"));
}

TEST_F(RightToLeftNavigationTest, AnAlertsFirstButtonIsAtTheRight) {
    show({a});
    const auto alert = UIAlertController::alertControllerWithTitle("T", "M", UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle("No", UIAlertActionStyle::Cancel, {}));
    alert->addAction(UIAlertAction::actionWithTitle("Yes", UIAlertActionStyle::Default, {}));
    navigation->presentViewController(alert, false, {});
    layOut();
    const auto actions = screen.presentations().top()->actions();
    ASSERT_EQ(actions.size(), 2U);
    EXPECT_EQ(actions[0].title, "No");
    EXPECT_GT(actions[0].frame.origin.x, actions[1].frame.origin.x);
}

TEST_F(RightToLeftNavigationTest, TheTimeIsAtTheRightAndTheBatteryAtTheLeft) {
    const SystemBars bars;
    layOut();
    const auto& parts = bars.statusBar().peer().subviews();
    EXPECT_EQ(CGRectGetMidX(parts.front()->frame()), 390 - 57);
    EXPECT_EQ(parts.back()->frame().origin.x, 27);
}

TEST_F(RightToLeftNavigationTest, TheBatteryIsFollowedByTheWirelessGlyphAndThatByTheSignals) {
    using Glyphs = StatusGlyphs;
    window->setBackgroundColor(UIColor::whiteColor());
    const SystemBars bars;
    layOut();
    const auto frame = screenFrame(*bars.statusBar().peer().subviews().back());
    Compositor compositor(screen);
    const auto picture = compositor.render();
    const auto isEmpty = [&picture, &frame](double begin, double width) {
        const auto area = QRectF(frame.origin.x + begin, frame.origin.y, width, frame.size.height);
        const auto part = picture.copy(QRectF(area.topLeft() * 3, area.size() * 3).toAlignedRect());
        auto plain = part;
        plain.fill(part.pixel(0, 0));
        return part == plain;
    };
    const auto wireless = Glyphs::batteryWidth + Glyphs::spacing;
    const auto signal = wireless + Glyphs::wirelessWidth + Glyphs::spacing;
    constexpr auto margin = 0.5; // that an edge may be smooth in
    EXPECT_TRUE(isEmpty(Glyphs::batteryWidth + margin, Glyphs::spacing - 2 * margin));
    EXPECT_FALSE(isEmpty(wireless, Glyphs::wirelessWidth));
    EXPECT_TRUE(isEmpty(signal - Glyphs::spacing + margin, Glyphs::spacing - 2 * margin));
    EXPECT_FALSE(isEmpty(signal, Glyphs::signalWidth));
}

TEST_F(RightToLeftNavigationTest, AMenusSymbolsAreAtTheLeft) {
    const auto row = make<MenuRowView>(dynamicCast<DesktopAction>(
        UIAction::actionWithTitle("Apply", UIImage::systemImageNamed("gear"), std::nullopt, {})));
    row->setFrame(CGRectMake(0, 100, 250, 44));
    window->addSubview(row);
    layOut();
    EXPECT_EQ(row->peer().subviews().back()->frame().origin.x, 16);
}
