#include "WelcomeView.h"

#include "RectGeometry.h"
#include "UIKit/_UIBackdropView.h"
#include "WelcomeFixture.h"
#include "screen/TouchDispatcher.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

class WelcomeViewTest : public WelcomeFixture {
protected:
    /// A page of six items with texts of two lines.
    void showMany() {
        show();
        for (int index = 0; index < 6; ++index)
            page()->addBulletedListItemWithTitle(
                "Title", "A text about it that takes two lines on most devices it is shown on.",
                symbol("gear"));
        layOut();
    }

    [[nodiscard]] CGRect frameInPage(const UIView& view) const {
        return view.peer().convertTo(page()->view(), view.bounds());
    }

    Ref<_UIBackdropView> insertBackdrop() {
        auto backdrop =
            _UIBackdropView::initWithFrame({}, true, _UIBackdropViewSettings::settingsForStyle(2));
        page()->view().setBackgroundColor(UIColor::clearColor());
        page()->view().insertSubview(backdrop, 0);
        return backdrop;
    }

    int darkest(const UIView& view) {
        const auto frame = view.peer().convertToScreen(view.bounds());
        const auto part = compositor.render().copy(
            QRectF(2 * frame.origin.x, 2 * frame.origin.y, 2 * frame.size.width, 2 * frame.size.height)
                .toRect());
        int least = 255;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x)
                least = std::min(least, part.pixelColor(x, y).lightness());
        }
        return least;
    }
};

TEST_F(WelcomeViewTest, HasItsColumnsInTheMiddleOfEverySheet) {
    struct Case {
        CGSize size;
        double headerLeft = 0;
        double headerWidth = 0;
        double listLeft = 0;
        double listWidth = 0;
    };

    showMany();
    for (const auto& [size, headerLeft, headerWidth, listLeft, listWidth] :
         {Case{phoneSheet, 24, 342, 32, 326},
          {formSheet, 48, 444, 48, 444},
          {pageSheet, 48, 616, 132, 448},
          {{320, 568}, 24, 272, 32, 256},
          {{20, 20}, 10, 0, 10, 0}}) {
        resize(size);
        const auto listFrame = list().view().frame();
        EXPECT_EQ(header().frame(),
                  CGRectMake(headerLeft, 0, headerWidth, header().heightForWidth(headerWidth)));
        EXPECT_EQ(listFrame.origin, (CGPoint{listLeft, CGRectGetMaxY(header().frame()) + 44}));
        EXPECT_EQ(listFrame.size.width, listWidth);
        EXPECT_EQ(scroll().contentSize(), (CGSize{size.width, CGRectGetMaxY(listFrame) + 32}));
        EXPECT_EQ(scroll().view().frame(), page()->view().bounds());
    }
}

TEST_F(WelcomeViewTest, ScrollsToItsEndOnlyWhereItIsHigherThanTheSheet) {
    struct Case {
        CGSize size;
        bool scrolls = false;
    };

    showMany();
    for (const auto& [size, scrolls] : {Case{phoneSheet, false},
                                        {formSheet, true},
                                        {pageSheet, false},
                                        {{320, 568}, true},
                                        {{390, 400}, true}}) {
        resize(size);
        EXPECT_EQ(scroll().canScrollAlong({0, -10}), scrolls) << size.width << " x " << size.height;
        scroll().scrollBy({0, 9999});
        const auto last = frameInPage(*items().back());
        EXPECT_LE(CGRectGetMaxY(last), size.height - page()->view().peer().safeAreaInsets().bottom);
        scroll().scrollBy({0, -9999});
        EXPECT_EQ(frameInPage(header()).origin.y, page()->view().peer().safeAreaInsets().top);
    }
}

TEST_F(WelcomeViewTest, IsScrolledByAFinger) {
    showMany();
    resize({390, 500});
    const auto before = frameInPage(*items()[0]).origin.y;
    drag({200, 400}, {200, 200});
    EXPECT_LT(frameInPage(*items()[0]).origin.y, before - 150);
    up({200, 200});
    settle();
}

TEST_F(WelcomeViewTest, KeepsClearOfTheSafeArea) {
    showMany();
    resize({390, 400});
    const auto end = scroll().maximumOffset().y;
    page()->view().peer().setAdditionalSafeAreaInsets({.bottom = 34});
    EXPECT_EQ(scroll().maximumOffset().y, end + 34);
}

TEST_F(WelcomeViewTest, GrowsWithItemsThatAreAddedWhileItIsShown) {
    showMany();
    const auto height = scroll().contentSize().height;
    page()->addBulletedListItemWithTitle("Title", "", nullptr);
    layOut();
    EXPECT_EQ(scroll().contentSize().height, height + 26 + 32);
}

TEST_F(WelcomeViewTest, IsOfTheSystemsBackground) {
    show();
    EXPECT_TRUE(hasColor(scroll().view(), QColor(255, 255, 255)));
    screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_TRUE(hasColor(scroll().view(), QColor(0, 0, 0)));
    page()->view().peer().setTraitOverride([](Traits& traits) { traits.elevated = true; });
    EXPECT_TRUE(hasColor(scroll().view(), QColor(28, 28, 30)));
}

TEST_F(WelcomeViewTest, LiesOnABackdropThatIsInsertedBeneathIt) {
    showMany();
    window->setBackgroundColor(DesktopColor::fixed(red));
    const auto backdrop = insertBackdrop();
    layOut();
    EXPECT_EQ(page()->view().peer().subviews().front(), backdrop);
    for (const auto size : {phoneSheet, formSheet, pageSheet}) {
        resize(size);
        EXPECT_EQ(backdrop->frame(), page()->view().bounds());
    }
    EXPECT_EQ(itemTitles().size(), 6U);
    EXPECT_LT(darkest(*headerLabels()[0]), 30);
    EXPECT_LT(darkest(*labels(0)[0]), 30);
    EXPECT_FALSE(hasColor(page()->view(), Qt::red));
}

} // namespace
