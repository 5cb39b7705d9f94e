#pragma once

#include "ObjectiveC/Weak.h"
#include "Preferences/PSTableCell.h"
#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UIStackView.h"

#include <optional>
#include <string>

class TweakButton;

/// A tall row of three icon buttons side by side, each with a caption below it, that open pages: a tap sends
/// the button to `openController:` of the row's target. All that it shows is among the row's properties. Made
/// by the framework, by name.
class TweakCustomCell final : public PSTableCell {
public:
    /// Readies a new cell for a row, in place of the other initialisers.
    [[nodiscard]] bool initWithSpecifier(const Ref<PSSpecifier>& specifier);

    // UIView:
    void didMoveToSuperview() override;

    /// Makes the three columns, above those that are there.
    void setupUI();

    /// Loads the icons, left to right.
    void loadImages();

    /// The picture of that name among the bundle's, drawn in that mode; empty when there is none.
    [[nodiscard]] Ref<UIImage> loadImageNamed(const std::optional<std::string>& name, long renderingMode);

    /// Of the row, in points, however wide it is.
    [[nodiscard]] double preferredHeightForWidth(double width);

    [[nodiscard]] Ref<UIColor> colorFromHexString(const std::optional<std::string>& text);

    /// The same, in which "default" is the system's colour of texts.
    [[nodiscard]] Ref<UIColor> getFontColor(const std::optional<std::string>& text);

    [[nodiscard]] const Ref<UIImage>& leftIconImage() const { return leftIconImage_; }

    void setLeftIconImage(const Ref<UIImage>& image) { leftIconImage_ = image; }

    [[nodiscard]] const Ref<UIImage>& middleIconImage() const { return middleIconImage_; }

    void setMiddleIconImage(const Ref<UIImage>& image) { middleIconImage_ = image; }

    [[nodiscard]] const Ref<UIImage>& rightIconImage() const { return rightIconImage_; }

    void setRightIconImage(const Ref<UIImage>& image) { rightIconImage_ = image; }

    /// The row's target when the cell was made; empty once that is gone.
    [[nodiscard]] Ref<NSObject> rootController() const { return rootController_.strong(); }

    void setRootController(const Ref<NSObject>& controller) { rootController_ = Weak(controller.get()); }

private:
    /// What all three columns have in common.
    struct Colors {
        Ref<UIColor> tint;
        Ref<UIColor> shadow;
        Ref<UIColor> font;
    };

    /// What one column shows, and the page that it opens.
    struct Column {
        Ref<UIImage> icon;
        std::optional<std::string> title;
        std::optional<std::string> className;
    };

    [[nodiscard]] Ref<UIStackView> createMainStackView();
    void configureButtons(UIStackView& stack);
    /// A column: the button, its caption below it, and what is left.
    void addButtonToStack(UIStackView& stack, const Column& column, const Colors& colors, double iconInset);
    [[nodiscard]] Ref<UIView> createButtonWithIcon(const Column& column, const Colors& colors,
                                                   double iconInset);
    void configureButton(TweakButton& button, const Column& column, const Colors& colors, double iconInset);
    void setupConstraints(const UIStackView& stack);

    Ref<UIImage> leftIconImage_;
    Ref<UIImage> middleIconImage_;
    Ref<UIImage> rightIconImage_;
    Weak<NSObject> rootController_;
};
