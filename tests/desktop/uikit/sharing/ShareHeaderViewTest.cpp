#include "sharing/ShareHeaderView.h"

#include "Phone.h"
#include "RectGeometry.h"
#include "accessibility/AccessibilityElement.h"
#include "views/UILabelPeer.h"

#include <algorithm>

namespace {

class ShareHeaderViewTest : public Phone {
protected:
    void showHeader(std::function<void()> close) {
        header = make<ShareHeaderView>("my backup.tar.gz", "7 bytes", std::move(close));
        header->setFrame(CGRectMake(0, 100, 390, ShareHeaderView::height));
        window->addSubview(header);
        layOut();
    }

    [[nodiscard]] UIView& element(std::string_view label) const {
        const auto elements = AccessibilityElement::allIn(*header);
        return *std::ranges::find(elements, label, &AccessibilityElement::label)->view;
    }

    [[nodiscard]] const UILabelPeer& label(std::string_view text) const {
        return peerOf<UILabelPeer>(dynamic_cast<UILabel&>(element(text)));
    }

    Ref<ShareHeaderView> header;
};

} // namespace

TEST_F(ShareHeaderViewTest, ItsTextsMeetInTheMiddleBesideTheSymbol) {
    showHeader({});
    EXPECT_EQ(element("my backup.tar.gz").frame(), CGRectMake(72, 16, 390 - 72 - 16, 20));
    EXPECT_EQ(element("7 bytes").frame(), CGRectMake(72, 36, 390 - 72 - 16, 20));
    EXPECT_EQ(label("my backup.tar.gz").fontStyle(), (FontStyle{.size = 15, .weight = FontWeight::Semibold}));
    EXPECT_EQ(label("7 bytes").fontStyle(), FontStyle{.size = 13});
}

TEST_F(ShareHeaderViewTest, ItsTextsEndBeforeTheButtonThatCloses) {
    showHeader([] {});
    EXPECT_EQ(element("Close").frame(), CGRectMake(390 - 16 - 30, 21, 30, 30));
    EXPECT_EQ(element("Close").layer().cornerRadius(), 15) << "which is round";
    for (const auto* const text : {"my backup.tar.gz", "7 bytes"})
        EXPECT_EQ(CGRectGetMaxX(element(text).frame()), 390 - 16 - 30 - 16) << text;
}

TEST_F(ShareHeaderViewTest, TheWholeButtonCloses) {
    int closed = 0;
    showHeader([&closed] { ++closed; });
    const auto frame = screenFrame(element("Close"));
    tap(CGPoint{CGRectGetMidX(frame), CGRectGetMidY(frame)}); // where the cross is
    tap(CGPoint{frame.origin.x + 2, CGRectGetMidY(frame)});
    EXPECT_EQ(closed, 2);
}

TEST_F(ShareHeaderViewTest, EndsInALineOfAPixel) {
    showHeader({});
    const auto frames = [this] {
        std::vector<CGRect> all;
        for (const auto& view : header->peer().subviews())
            all.push_back(view->frame());
        return all;
    }();
    const auto pixel = 1 / screen.traits().displayScale;
    EXPECT_NE(std::ranges::find(frames, CGRectMake(0, 72 - pixel, 390, pixel)), frames.end());
}
