#include "navigation/BarButtonView.h"

#include "DesktopImage.h"
#include "RectGeometry.h"
#include "menus/MenuView.h"
#include "navigation/NavigationFixture.h"
#include "views/UIImageViewPeer.h"

namespace {

/// A button with a symbol at the right of the bar, and a menu of one row.
class BarButtonViewTest : public NavigationFixture {
protected:
    BarButtonViewTest() {
        const auto action = UIAction::actionWithTitle("Apply", UIImage::systemImageNamed("gear"),
                                                      std::nullopt, [this](UIAction&) { ++chosen; });
        const auto only = page("A");
        only->navigationItem().setRightBarButtonItems({UIBarButtonItem::initWithImage(
            UIImage::systemImageNamed("gear"), UIMenu::menuWithTitle("", {action}))});
        show({only});
    }

    UIView& button() { return *content().rightButtons().at(0); }

    static CGPoint middleOf(const CGRect& frame) { return {CGRectGetMidX(frame), CGRectGetMidY(frame)}; }

    int chosen = 0;
};

const UIImageView* imageIn(const UIView& view) {
    if (const auto* const image = dynamic_cast<const UIImageView*>(&view))
        return image;
    for (const auto& subview : view.peer().subviews()) {
        if (const auto* const found = imageIn(*subview))
            return found;
    }
    return nullptr;
}

} // namespace

TEST_F(BarButtonViewTest, ShowsItsSymbolLargerThanTextsDo) {
    const auto* const shown = imageIn(button());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(peerOf<UIImageViewPeer>(*shown).image()->size(), DesktopImage::symbol("gear", 21)->size());
    EXPECT_EQ(shown->bounds().size, DesktopImage::symbol("gear", 21)->size());
}

TEST_F(BarButtonViewTest, AFingerThatIsTakenAwayLeavesItsMenuWithoutAChoice) {
    down(middleOf(screenFrame(button())));
    advance(std::chrono::milliseconds(500));
    auto* const menu = screen.presentations().top();
    ASSERT_NE(menu, nullptr);
    const auto& row = *dynamic_cast<MenuView&>(menu->shownView()).rows()[0];
    const auto& highlight = *row.peer().subviews().front();
    move(middleOf(menu->actions()[0].frame));
    EXPECT_FALSE(highlight.peer().isHidden());
    cancel();
    EXPECT_TRUE(highlight.peer().isHidden());
    settle();
    EXPECT_EQ(screen.presentations().top(), menu);
    EXPECT_EQ(chosen, 0);
}
