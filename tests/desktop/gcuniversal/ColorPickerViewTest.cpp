#include "ColorPickerView.h"

#include "Phone.h"
#include "RectGeometry.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::Pair;

class ColorPickerViewTest : public Phone {
protected:
    explicit ColorPickerViewTest(const TestDevice::Settings& settings = {}) : Phone({}, settings) {
        show(Ref<UIView>(picker_));
    }

    /// Where the views of a kind begin and end across.
    template <class T>
    [[nodiscard]] std::vector<std::pair<double, double>> extents() const {
        std::vector<std::pair<double, double>> found;
        for (const auto& view : picker_->peer().subviews()) {
            if (dynamic_cast<const T*>(view.get()) != nullptr)
                found.emplace_back(view->frame().origin.x, CGRectGetMaxX(view->frame()));
        }
        return found;
    }

    const Ref<ColorPickerView> picker_ = make<ColorPickerView>(false);
};

class GermanColorPickerViewTest : public ColorPickerViewTest {
protected:
    GermanColorPickerViewTest() : ColorPickerViewTest({.locale = "de_DE"}) {}
};

class RightToLeftColorPickerViewTest : public ColorPickerViewTest {
protected:
    RightToLeftColorPickerViewTest() : ColorPickerViewTest({.locale = "he_IL"}) {}
};

} // namespace

TEST_F(ColorPickerViewTest, BeginsWithTheColourAndTheNames) {
    EXPECT_THAT(extents<ColorSwatch>(), ElementsAre(Pair(16, 88)));
    EXPECT_THAT(extents<UITextField>(), ElementsAre(Pair(100, 374)));
    EXPECT_THAT(extents<UILabel>(), testing::Each(Pair(16, 80)));
    EXPECT_THAT(extents<UISlider>(), testing::Each(Pair(92, 374)));
}

TEST_F(GermanColorPickerViewTest, SlidersBeginBehindTheLongestName) {
    const auto withOpacity = make<ColorPickerView>(true);
    show(Ref<UIView>(withOpacity));
    for (const auto& view : withOpacity->peer().subviews()) {
        if (auto* const label = dynamic_cast<UILabel*>(view.get())) {
            EXPECT_GE(label->frame().size.width, label->peer().sizeThatFits({}).width)
                << peerOf<UILabelPeer>(*label).text().value_or("");
            EXPECT_GT(CGRectGetMaxX(label->frame()), 80) << "for Deckkraft";
        }
        if (dynamic_cast<const UISlider*>(view.get()) != nullptr) {
            EXPECT_GT(view->frame().origin.x, 92);
        }
    }
}

TEST_F(RightToLeftColorPickerViewTest, BeginsAtTheRight) {
    EXPECT_THAT(extents<ColorSwatch>(), ElementsAre(Pair(302, 374)));
    EXPECT_THAT(extents<UITextField>(), ElementsAre(Pair(16, 290)));
    EXPECT_THAT(extents<UILabel>(), testing::Each(Pair(310, 374)));
    EXPECT_THAT(extents<UISlider>(), testing::Each(Pair(16, 298)));
}

TEST_F(RightToLeftColorPickerViewTest, ItsGridIsTheSameInEveryLanguage) {
    EXPECT_THAT(extents<ColorGrid>(), ElementsAre(Pair(16, 374)));
}
