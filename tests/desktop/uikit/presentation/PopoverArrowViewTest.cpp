#include "presentation/PopoverArrowView.h"

#include "Phone.h"
#include "UIKit/UIColor.h"
#include "screen/Compositor.h"

#include <array>

namespace {

using Side = PopoverGeometry::Side;

/// An arrow of 26 by 26 points on black, at (100, 100).
class PopoverArrowViewTest : public Phone {
protected:
    PopoverArrowViewTest() {
        window->setBackgroundColor(UIColor::blackColor());
        arrow->setFrame(CGRectMake(100, 100, 26, 26));
        window->addSubview(arrow);
    }

    /// How much of the picture is the arrow's, in each of the square's edges: upper, lower, left, right.
    [[nodiscard]] std::array<int, 4> inkAtEdges() {
        Compositor compositor(screen);
        const auto picture = compositor.render().copy(300, 300, 78, 78);
        std::array<int, 4> ink{};
        for (int along = 0; along < 78; ++along) {
            const std::array pixels{picture.pixel(along, 1), picture.pixel(along, 76),
                                    picture.pixel(1, along), picture.pixel(76, along)};
            for (std::size_t edge = 0; edge < pixels.size(); ++edge)
                ink.at(edge) += qGray(pixels.at(edge)) > 127 ? 1 : 0;
        }
        return ink;
    }

    /// The edges of the square at which the arrow is broadest and narrowest.
    void expectBaseAndTip(std::size_t base, std::size_t tip) {
        const auto ink = inkAtEdges();
        EXPECT_GT(ink.at(base), 50) << "the base";
        EXPECT_GT(ink.at(tip), 0) << "the tip";
        EXPECT_LT(ink.at(tip), 25) << "the tip";
    }

    static constexpr std::size_t upper = 0;
    static constexpr std::size_t lower = 1;
    static constexpr std::size_t left = 2;
    static constexpr std::size_t right = 3;

    const Ref<PopoverArrowView> arrow = make<PopoverArrowView>();
};

} // namespace

TEST_F(PopoverArrowViewTest, PointsFromThePanelToItsSource) {
    arrow->setSide(Side::Below);
    expectBaseAndTip(lower, upper);
    arrow->setSide(Side::Above);
    expectBaseAndTip(upper, lower);
    arrow->setSide(Side::Right);
    expectBaseAndTip(right, left);
    arrow->setSide(Side::Left);
    expectBaseAndTip(left, right);
}
