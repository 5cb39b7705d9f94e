#include "presentation/PopoverPresentationView.h"

#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "presentation/PresentationFixture.h"

namespace {

using std::chrono::milliseconds;

/// A controller's view in a popover of 300 by 200 points below the middle of a tablet.
class PopoverPresentationViewTest : public PresentationFixture {
protected:
    PopoverPresentationViewTest() : PresentationFixture(Screen::Options{.idiom = Idiom::Pad, .scale = 2}) {
        popover->setSourceView(*window);
        popover->setSourceRect(CGRectMake(410, 590, 0, 0));
        view->setFrame(window->bounds());
        window->addSubview(view);
        layOut();
    }

    const Ref<LoggedPage> shown = page("B");
    const Ref<DesktopPopoverPresentationController> popover = make<DesktopPopoverPresentationController>();
    const Ref<PopoverPresentationView> view =
        make<PopoverPresentationView>(*shown, popover, CGSize{300, 200});
};

} // namespace

TEST_F(PopoverPresentationViewTest, ItsPageIsInANarrowPlaceAboveTheOthers) {
    EXPECT_FALSE(navigation->view().peer().traits().compactWidth);
    EXPECT_TRUE(shown->view().peer().traits().compactWidth);
    EXPECT_TRUE(shown->view().peer().traits().elevated);
}

TEST_F(PopoverPresentationViewTest, AWideFaintShadowIsAroundThePanel) {
    const auto isShadow = [](const Ref<UIView>& part) {
        return part->layer().peer().number(LayerProperty::ShadowOpacity) > 0;
    };
    const auto& parts = view->peer().subviews();
    const auto shadow = std::ranges::find_if(parts, isShadow);
    ASSERT_NE(shadow, parts.end());
    const auto& layer = (*shadow)->layer().peer();
    EXPECT_EQ(layer.number(LayerProperty::ShadowOpacity), 0.2);
    EXPECT_EQ(layer.number(LayerProperty::ShadowRadius), 32);
    EXPECT_EQ(layer.value(LayerProperty::ShadowOffset), LayerValue{});
    EXPECT_EQ((*shadow)->frame(), view->shownView().frame());
    ASSERT_TRUE(layer.shadowPath);
    EXPECT_EQ(layer.shadowPath->boundingRect(), QRectF(0, 0, 300, 200));
}

TEST_F(PopoverPresentationViewTest, FadesInAndOutInAQuarterOfASecond) {
    EXPECT_EQ(view->openingCourse().duration, milliseconds(250));
    EXPECT_EQ(view->closingCourse().duration, milliseconds(250));
}
