// Controls and rows where the device's language is read from right to left.

#include "CALayerPeer.h"
#include "DesktopImage.h"
#include "Phone.h"
#include "RectGeometry.h"
#include "UIKit/UILabel.h"
#include "controls/UIButtonPeer.h"
#include "controls/UISegmentedControlPeer.h"
#include "controls/UISliderPeer.h"
#include "controls/UISwitchPeer.h"
#include "scrolling/UIScrollViewPeer.h"
#include "tables/UITableViewCellPeer.h"
#include "text/UITextFieldPeer.h"
#include "views/UILabelPeer.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace {

class RightToLeftControlsTest : public Phone {
protected:
    RightToLeftControlsTest() : Phone({}, {.locale = "ar_EG"}) {}

    void add(const Ref<UIView>& view, const CGRect& frame) {
        view->setFrame(frame);
        window->addSubview(view);
        layOut();
    }

    Ref<UITableViewCell> cellOf(UITableViewCellStyle style) {
        auto cell = adopt(new UITableViewCell);
        EXPECT_TRUE(cell->initWithStyle(style, "Cell"));
        add(cell, CGRectMake(16, 100, 358, 44));
        return cell;
    }

    /// The columns that a label of 200 points draws in, from the first to the last.
    std::pair<int, int> inkOf(NSTextAlignment alignment) {
        const auto label = make<UILabel>();
        label->setText("ii");
        label->setTextAlignment(alignment);
        add(label, CGRectMake(0, 0, 200, 30));
        QImage image(200, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        label->peer().drawLayer(painter, label->bounds(), label->peer().traits());
        painter.end();
        std::pair ink(image.width(), -1);
        for (auto x = 0; x < image.width(); ++x) {
            for (auto y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y).alpha() > 0)
                    ink = {std::min(ink.first, x), x};
            }
        }
        return ink;
    }
};

} // namespace

TEST_F(RightToLeftControlsTest, PlacesAreMirroredInTheBounds) {
    const auto view = make<UIView>();
    add(view, CGRectMake(30, 40, 100, 50));
    EXPECT_EQ(view->peer().fromLeading(CGRectMake(10, 5, 20, 6)), CGRectMake(70, 5, 20, 6));
    EXPECT_EQ(view->peer().fromLeading(CGPoint{10, 5}), (CGPoint{90, 5}));
    view->peer().setBounds(CGRectMake(1000, 0, 100, 50));
    EXPECT_EQ(view->peer().fromLeading(CGRectMake(1010, 5, 20, 6)), CGRectMake(1070, 5, 20, 6));
}

TEST_F(RightToLeftControlsTest, ASwitchIsOnAtItsLeft) {
    const auto shown = make<UISwitch>();
    add(shown, CGRectMake(100, 100, 51, 31));
    auto& peer = peerOf<UISwitchPeer>(*shown);
    const auto thumb = [&peer] { return peer.subviews().back()->frame(); };
    EXPECT_EQ(thumb(), CGRectMake(22, 2, 27, 27));
    peer.setOn(true, false);
    EXPECT_EQ(thumb(), CGRectMake(2, 2, 27, 27));
    down({110, 115});
    move({140, 115});
    EXPECT_FALSE(peer.isOn());
    move({105, 115});
    up({105, 115});
    EXPECT_TRUE(peer.isOn());
}

TEST_F(RightToLeftControlsTest, ASliderGrowsToTheLeft) {
    const auto slider = make<UISlider>();
    add(slider, CGRectMake(50, 100, 228, 34));
    auto& peer = peerOf<UISliderPeer>(*slider);
    const auto thumb = [&peer] { return peer.subviews().back()->frame(); };
    EXPECT_EQ(thumb().origin.x, 200);
    down({264, 117});
    move({214, 117});
    EXPECT_DOUBLE_EQ(peer.value(), 0.25);
    up({214, 117});
    EXPECT_EQ(thumb().origin.x, 150);
    const auto& filled = *peer.subviews()[3];
    EXPECT_EQ(CGRectGetMaxX(filled.frame()), 228);
    EXPECT_EQ(filled.frame().size.width, 64);
}

TEST_F(RightToLeftControlsTest, TheFirstSegmentIsAtTheRight) {
    const auto segments = make<UISegmentedControl>();
    add(segments, CGRectMake(20, 100, 300, 32));
    auto& peer = peerOf<UISegmentedControlPeer>(*segments);
    peer.setTitles({"One", "Two", "Three"});
    layOut();
    tap({270, 116});
    EXPECT_EQ(peer.selected(), 0U);
    tap({70, 116});
    EXPECT_EQ(peer.selected(), 2U);
    settle();
    const auto one = std::ranges::find(peer.subviews(), std::optional<std::string>("One"),
                                       [](const auto& view) { return view->peer().shownText(); });
    ASSERT_NE(one, peer.subviews().end());
    EXPECT_EQ((*one)->frame().origin.x, 204);
}

TEST_F(RightToLeftControlsTest, TextsStandAtTheRightUnlessToldOtherwise) {
    EXPECT_GT(inkOf(NSTextAlignment::Natural).first, 180);
    EXPECT_LT(inkOf(NSTextAlignment::Left).second, 20);
    EXPECT_GT(inkOf(NSTextAlignment::Right).first, 180);
    const auto [first, last] = inkOf(NSTextAlignment::Center);
    EXPECT_NEAR((first + last) / 2.0, 100, 2);
}

TEST_F(RightToLeftControlsTest, AButtonsImageIsRightOfItsTitle) {
    const auto button = make<UIButton>();
    auto& peer = peerOf<UIButtonPeer>(*button);
    peer.setTitle("Title");
    peer.setImage(DesktopImage::symbol("gear", 20));
    add(button, CGRectMake(0, 0, 200, 44));
    EXPECT_EQ(peer.imageView().frame().origin.x, CGRectGetMaxX(peer.titleLabel().frame()));
}

TEST_F(RightToLeftControlsTest, ARowBeginsAtTheRight) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    auto& peer = peerOf<UITableViewCellPeer>(*cell);
    peer.textLabel().setText("Title");
    peer.detailTextLabel().setText("Detail");
    peer.imageView().setImage(DesktopImage::symbol("gear", 20));
    peer.setImageColumn(29);
    peer.setAccessoryType(UITableViewCellAccessoryType::DisclosureIndicator);
    layOut();
    const auto in = [&cell](const UIView& view) { return view.peer().convertTo(*cell, view.bounds()); };
    EXPECT_NEAR(CGRectGetMidX(in(peer.imageView())), 358 - 16 - 14.5, 0.34);
    EXPECT_NEAR(CGRectGetMaxX(in(peer.textLabel())), 358 - 16 - 29 - 16, 0.01);
    const auto& slice = cell->peer().subviews().front()->peer();
    const auto& chevron = dynamic_cast<UIImageView&>(*slice.subviews().back());
    EXPECT_EQ(chevron.frame().origin.x, 16);
    EXPECT_EQ(dynamicCast<DesktopImage>(chevron.image())->symbolName(), "chevron.left");
    EXPECT_GT(in(peer.detailTextLabel()).origin.x, CGRectGetMaxX(chevron.frame()));
    EXPECT_LT(CGRectGetMaxX(in(peer.detailTextLabel())), in(peer.textLabel()).origin.x);
    EXPECT_EQ(CGRectGetMaxX(cell->contentView().frame()), 358);
    const auto& separator = *slice.subviews()[2];
    EXPECT_EQ(separator.frame().origin.x, 0);
    EXPECT_EQ(CGRectGetMaxX(separator.frame()), 358 - 16 - 29 - 16);
}

TEST_F(RightToLeftControlsTest, ATextThatIsTypedGrowsToTheLeft) {
    const auto field = make<UITextField>();
    add(field, CGRectMake(10, 100, 200, 40));
    auto& peer = peerOf<UITextFieldPeer>(*field);
    ASSERT_TRUE(field->becomeFirstResponder());
    const auto room = peer.convertToScreen(field->bounds());
    const auto empty = peer.caretOnScreen();
    peer.edit([](EditedText& text) { text.insert("ab"); });
    EXPECT_GT(CGRectGetMaxX(empty), CGRectGetMaxX(room) - 10);
    EXPECT_EQ(peer.caretOnScreen().origin.x, empty.origin.x) << "at the end of what is read from the left";
    peer.setText({});
    peer.edit([](EditedText& text) { text.insert(QString::fromUtf8("אב")); });
    EXPECT_LT(peer.caretOnScreen().origin.x, empty.origin.x - 10);
}

TEST_F(RightToLeftControlsTest, TheScrollIndicatorIsAtTheLeft) {
    const auto scroll = make<UIScrollView>();
    add(scroll, CGRectMake(0, 0, 390, 400));
    peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 1000});
    drag({200, 300}, {200, 200});
    EXPECT_EQ(scroll->peer().subviews().back()->frame().origin.x, 3);
    up({200, 200});
}
