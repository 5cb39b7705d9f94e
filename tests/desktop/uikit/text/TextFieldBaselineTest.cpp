#include "UIKit/UILabel.h"
#include "UIKit/UITextField.h"
#include "screen/ShownScreen.h"
#include "text/UITextFieldPeer.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

/// The lowest row of pixels within some columns that is not all of the background's colour.
int lowestInk(const QImage& picture, int left, int right) {
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = left; x < right; ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return y;
        }
    }
    return -1;
}

/// At so many pixels per point.
class TextFieldBaselineTest : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(AllScales, TextFieldBaselineTest, testing::Values(1.0, 1.5, 2.0, 3.0));

TEST_P(TextFieldBaselineTest, ATextAndAPlaceholderStandOnTheBaselineOfTheLabelBesideThem) {
    for (const double height : {30.0, 40.0, 43.0, 44.0}) {
        ShownScreen shown({180, 60}, GetParam());
        const auto label = makeWith<UILabel>(&UILabel::initWithFrame, CGRectMake(5, 5, 50, height));
        label->setText("HEH");
        shown.window->addSubview(label);
        for (const double left : {60.0, 120.0}) {
            const auto field = make<UITextField>();
            field->setFrame(CGRectMake(left, 5, 50, height));
            field->setPlaceholder("HEH");
            if (left > 100)
                peerOf<UITextFieldPeer>(*field).setText("HEH");
            shown.window->addSubview(field);
        }
        shown.screen.layoutIfNeeded();
        const auto& picture = shown.compositor.render();
        const auto inThird = [&picture](int third) {
            const int width = picture.width() / 3;
            return lowestInk(picture, third * width, (third + 1) * width);
        };
        EXPECT_GT(inThird(0), 0) << height;
        EXPECT_EQ(inThird(1), inThird(0)) << "the placeholder, in " << height;
        EXPECT_EQ(inThird(2), inThird(0)) << "the text, in " << height;
    }
}

} // namespace
