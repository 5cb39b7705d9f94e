#include "sharing/ShareView.h"

#include "Phone.h"
#include "RectGeometry.h"
#include "sharing/ShareHeaderView.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"
#include "views/UIImageViewPeer.h"

namespace {

/// A sheet of two activities that fills the screen.
class ShareViewTest : public Phone {
protected:
    ShareViewTest() { Phone::show(view); }

    [[nodiscard]] UITableViewPeer& table() const {
        return peerOf<UITableViewPeer>(dynamic_cast<UITableView&>(*view->peer().subviews().back()));
    }

    [[nodiscard]] Ref<UITableViewCell> row(std::size_t index) const {
        return table().cellForRow({.section = 0, .row = index});
    }

    /// The image view in the view that shows the symbol; null when there is none.
    [[nodiscard]] static const UIImageView* symbolIn(const UIView& view, std::string_view name) {
        const auto* const image = dynamic_cast<const UIImageView*>(&view);
        const auto drawn = image != nullptr ? peerOf<UIImageViewPeer>(*image).image() : nullptr;
        if (drawn && drawn->symbolName() == name)
            return image;
        for (const auto& subview : view.peer().subviews()) {
            if (const auto* const found = symbolIn(*subview, name))
                return found;
        }
        return nullptr;
    }

    int copied = 0;
    const Ref<ShareView> view =
        make<ShareView>(make<ShareHeaderView>("a", "b", nullptr),
                        std::vector<ShareView::Activity>{{"Copy", "doc.on.doc", [this] { ++copied; }},
                                                         {"Open With…", "arrow.up.forward.app", [] {}}});
};

} // namespace

TEST_F(ShareViewTest, ItsRowsAre50HighBelowTheHeaderAndAGap) {
    EXPECT_EQ(screenFrame(*row(0)), CGRectMake(16, 72 + 16, 358, 50));
    EXPECT_EQ(screenFrame(*row(1)), CGRectMake(16, 72 + 16 + 50, 358, 50));
    EXPECT_EQ(ShareView::heightFor(2), 72 + 16 + 2 * 50 + 16);
}

TEST_F(ShareViewTest, EachRowHasItsGlyphAtTheTrailingEdge) {
    const auto* const glyph = symbolIn(*row(0), "doc.on.doc");
    ASSERT_NE(glyph, nullptr);
    EXPECT_EQ(screenFrame(*glyph), CGRectMake(16 + 358 - 16 - 22, 88 + 14, 22, 22));
    EXPECT_EQ(peerOf<UIImageViewPeer>(*glyph).image()->size(),
              DesktopImage::symbol("doc.on.doc", 22)->size());
}

TEST_F(ShareViewTest, ARowThatIsTappedActsAndIsNotLeftSelected) {
    tap(*row(0));
    EXPECT_EQ(copied, 1);
    EXPECT_FALSE(table().selectedRow());
    settle();
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(*row(0)).isSelected());
}
