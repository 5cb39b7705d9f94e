#pragma once

#include "ColorComponents.h"
#include "ColorGrid.h"
#include "ColorSwatch.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIScrollView.h"
#include "UIKit/UITextField.h"
#include "controls/UISlider.h"

#include <array>
#include <functional>
#include <string>

/// What the sheet of colours shows: the colour, its hex digits, a grid and a slider for each part of it.
class ColorPickerView final : public UIScrollView {
public:
    /// \param hasOpacity whether the user may set that too
    explicit ColorPickerView(bool hasOpacity);

    /// Called when the user has chosen another colour.
    void setChangeHandler(std::function<void()> handler) { changed_ = std::move(handler); }

    [[nodiscard]] const ColorComponents& color() const { return color_; }

    /// Calls nobody.
    void setColor(const ColorComponents& color);

    // UIView:
    void layoutSubviews() override;

private:
    struct Part {
        std::string name;
        double ColorComponents::* value;
        Ref<UILabel> label;
        Ref<UISlider> slider;
    };

    void addParts();
    void choose(const ColorComponents& color);
    void readField();
    [[nodiscard]] double widestLabel() const;
    void layOutPart(const Part& part, double y, double labelWidth);

    bool hasOpacity_;
    ColorComponents color_;
    Ref<ColorSwatch> swatch_;
    Ref<UITextField> field_;
    Ref<ColorGrid> grid_;
    std::array<Part, 4> parts_;
    std::function<void()> changed_ = [] {};
};
