#pragma once

#include "ObjectiveC/Ref.h"
#include "UIKit/UIView.h"

#include <random>
#include <vector>

/// Views with every look that there is, in random trees that change at random. The same for the same seed.
class RandomLayers {
public:
    /// \param root what the views are added to
    RandomLayers(UIView& root, unsigned seed);

    /// Changes something: a look, a place, the tree, or starts an animation.
    void change();

private:
    [[nodiscard]] double number(double from, double to);
    [[nodiscard]] bool chance(double probability);
    [[nodiscard]] std::size_t choice(std::size_t count);
    [[nodiscard]] UIView& any();
    void addView();
    void removeView();
    void reorder();
    void setLook(UIView& view);
    void setPlace(UIView& view);
    void animate(UIView& view);
    void setText(UIView& view);

    UIView& root_;
    std::mt19937 random_;
    std::vector<Ref<UIView>> views_;
};
