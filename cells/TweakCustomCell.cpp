#include "TweakCustomCell.h"

#include "Foundation/Format.h"
#include "HexColor.h"
#include "ObjectiveC/Class.h"
#include "RootPrefixResolver.h"
#include "SpecifierText.h"
#include "TweakButton.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UILabel.h"

#include <array>

namespace {

constexpr auto reuseIdentifier = "Cell";
constexpr auto rowHeight = 120.0;
constexpr auto rowMargin = 20.0;
constexpr auto columnGap = 20.0; ///< at least
constexpr auto columnWidth = 80.0;
constexpr auto columnHeight = 118.0; ///< more than the margins leave; that is meant
constexpr auto captionGap = 8.0;
constexpr auto buttonSide = 80.0;
constexpr auto captionWidth = 80.0;
constexpr auto captionHeight = 30.0;
constexpr auto captionFontSize = 11.0;
constexpr auto captionLines = 2;
constexpr auto leastCaptionScale = 0.7;
constexpr auto imagePath = "/Library/PreferenceBundles/corvexPrefs.bundle/Assets/%@.png";
constexpr auto templateMode = "true"; ///< and no other way to say yes
constexpr auto adaptiveFontColor = "default";

const Class classObject = Class::define<TweakCustomCell, PSTableCell>(
    "TweakCustomCell",
    {method<"initWithSpecifier:", &TweakCustomCell::initWithSpecifier>(),
     method<"setupUI", &TweakCustomCell::setupUI>(), method<"loadImages", &TweakCustomCell::loadImages>(),
     method<"loadImageNamed:withRenderingMode:", &TweakCustomCell::loadImageNamed>(),
     method<"preferredHeightForWidth:", &TweakCustomCell::preferredHeightForWidth>(),
     method<"colorFromHexString:", &TweakCustomCell::colorFromHexString>(),
     method<"getFontColor:", &TweakCustomCell::getFontColor>(),
     method<"leftIconImage", &TweakCustomCell::leftIconImage>(),
     method<"setLeftIconImage:", &TweakCustomCell::setLeftIconImage>(),
     method<"middleIconImage", &TweakCustomCell::middleIconImage>(),
     method<"setMiddleIconImage:", &TweakCustomCell::setMiddleIconImage>(),
     method<"rightIconImage", &TweakCustomCell::rightIconImage>(),
     method<"setRightIconImage:", &TweakCustomCell::setRightIconImage>(),
     method<"rootController", &TweakCustomCell::rootController>(),
     method<"setRootController:", &TweakCustomCell::setRootController>()});

void fixSize(const UIView& view, double width, double height) {
    NSLayoutConstraint::activateConstraints({view.widthAnchor()->constraintEqualToConstant(width),
                                             view.heightAnchor()->constraintEqualToConstant(height)});
}

Ref<UIStackView> createVerticalStackView() {
    auto stack = make<UIStackView>();
    stack->setAxis(UILayoutConstraintAxis::Vertical);
    stack->setAlignment(UIStackViewAlignment::Center);
    stack->setSpacing(captionGap);
    stack->setDistribution(UIStackViewDistribution::Fill);
    fixSize(*stack, columnWidth, columnHeight);
    return stack;
}

Ref<UILabel> createLabelWithTitle(const std::optional<std::string>& title, const Ref<UIColor>& color) {
    auto label = make<UILabel>();
    label->setText(title);
    label->setFont(UIFont::systemFontOfSize(captionFontSize, UIFontWeightMedium));
    label->setTextColor(color);
    label->setTextAlignment(NSTextAlignment::Center);
    label->setNumberOfLines(captionLines);
    label->setAdjustsFontSizeToFitWidth(true);
    label->setMinimumScaleFactor(leastCaptionScale);
    label->setLineBreakMode(NSLineBreakMode::ByWordWrapping);
    fixSize(*label, captionWidth, captionHeight);
    return label;
}

Ref<UIView> createSpacer() {
    auto spacer = make<UIView>();
    spacer->setTranslatesAutoresizingMaskIntoConstraints(false);
    return spacer;
}

} // namespace

bool TweakCustomCell::initWithSpecifier(const Ref<PSSpecifier>& specifier) {
    if (!specifier || !initWithStyle(UITableViewCellStyle::Default, reuseIdentifier, *specifier))
        return false;
    setRootController(specifier->target());
    return true;
}

// A cell that has been in a superview before gets further columns there; that is meant.
void TweakCustomCell::didMoveToSuperview() {
    PSTableCell::didMoveToSuperview();
    if (superview())
        setupUI();
}

void TweakCustomCell::setupUI() {
    loadImages();
    const auto stack = createMainStackView();
    configureButtons(*stack);
    setupConstraints(*stack);
}

void TweakCustomCell::loadImages() {
    const auto mode = static_cast<long>(textOf(specifier(), "renderingMode") == templateMode
                                            ? UIImageRenderingMode::AlwaysTemplate
                                            : UIImageRenderingMode::AlwaysOriginal);
    leftIconImage_ = loadImageNamed(textOf(specifier(), "leftIcon"), mode);
    middleIconImage_ = loadImageNamed(textOf(specifier(), "middleIcon"), mode);
    rightIconImage_ = loadImageNamed(textOf(specifier(), "rightIcon"), mode);
}

Ref<UIImage> TweakCustomCell::loadImageNamed(const std::optional<std::string>& name, long renderingMode) {
    const auto path = RootPrefixResolver::jailbreakRootPath(imagePath);
    if (!path)
        return nullptr;
    const auto image = UIImage::imageNamed(replacePlaceholders(*path, std::array{formatted(name)}));
    return image ? image->imageWithRenderingMode(static_cast<UIImageRenderingMode>(renderingMode)) : nullptr;
}

double TweakCustomCell::preferredHeightForWidth(double /*width*/) {
    return rowHeight;
}

Ref<UIColor> TweakCustomCell::colorFromHexString(const std::optional<std::string>& text) {
    return colorFromHex(text);
}

Ref<UIColor> TweakCustomCell::getFontColor(const std::optional<std::string>& text) {
    return text == adaptiveFontColor ? UIColor::labelColor() : colorFromHex(text);
}

Ref<UIStackView> TweakCustomCell::createMainStackView() {
    auto stack = make<UIStackView>();
    stack->setAxis(UILayoutConstraintAxis::Horizontal);
    stack->setAlignment(UIStackViewAlignment::Center);
    stack->setDistribution(UIStackViewDistribution::EqualSpacing);
    stack->setSpacing(columnGap);
    stack->setTranslatesAutoresizingMaskIntoConstraints(false);
    addSubview(stack);
    return stack;
}

void TweakCustomCell::configureButtons(UIStackView& stack) {
    const Colors colors{.tint = colorFromHexString(textOf(specifier(), "iconColor")),
                        .shadow = colorFromHexString(textOf(specifier(), "iconShadowColor")),
                        .font = getFontColor(textOf(specifier(), "fontColor"))};
    const auto row = specifier();
    const auto number = row ? row->propertyForKey("iconInset") : std::nullopt;
    const auto inset = static_cast<float>(number ? number->doubleValue() : 0);
    addButtonToStack(stack,
                     {leftIconImage_, textOf(specifier(), "leftLabel"), textOf(specifier(), "leftClass")},
                     colors, inset);
    addButtonToStack(
        stack, {middleIconImage_, textOf(specifier(), "middleLabel"), textOf(specifier(), "middleClass")},
        colors, inset);
    addButtonToStack(stack,
                     {rightIconImage_, textOf(specifier(), "rightLabel"), textOf(specifier(), "rightClass")},
                     colors, inset);
}

void TweakCustomCell::addButtonToStack(UIStackView& stack, const Column& column, const Colors& colors,
                                       double iconInset) {
    const auto vertical = createVerticalStackView();
    vertical->addArrangedSubview(createButtonWithIcon(column, colors, iconInset));
    vertical->addArrangedSubview(createLabelWithTitle(column.title, colors.font));
    vertical->addArrangedSubview(createSpacer());
    stack.addArrangedSubview(vertical);
}

Ref<UIView> TweakCustomCell::createButtonWithIcon(const Column& column, const Colors& colors,
                                                  double iconInset) {
    auto button =
        makeWith<TweakButton>(&TweakButton::initWithFrame, CGRectMake(0, 0, buttonSide, buttonSide));
    configureButton(*button, column, colors, iconInset);
    return button;
}

void TweakCustomCell::configureButton(TweakButton& button, const Column& column, const Colors& colors,
                                      double iconInset) {
    button.setTintColor(colors.tint);
    button.setImage(column.icon, UIControlState::Normal);
    button.setContentHorizontalAlignment(UIControlContentHorizontalAlignment::Fill);
    button.setContentVerticalAlignment(UIControlContentVerticalAlignment::Fill);
    button.setClipsToBounds(true);
    button.imageView().setContentMode(UIViewContentMode::ScaleAspectFit);
    auto& layer = button.layer();
    layer.setShadowColor(colors.shadow);
    layer.setShadowRadius(5.0);
    layer.setShadowOffset({1.0, 1.0});
    layer.setShadowOpacity(0.5);
    button.setIdentifier(column.className);
    button.setImageEdgeInsets({iconInset, iconInset, iconInset, iconInset});
    button.setAccessibilityLabel(column.title);
    if (const auto row = specifier(); row && row->target())
        button.addTarget(*row->target(), "openController:", UIControlEvents::TouchUpInside);
    fixSize(button, buttonSide, buttonSide);
}

void TweakCustomCell::setupConstraints(const UIStackView& stack) {
    NSLayoutConstraint::activateConstraints(
        {stack.topAnchor()->constraintEqualToAnchor(topAnchor(), rowMargin),
         stack.bottomAnchor()->constraintEqualToAnchor(bottomAnchor(), -rowMargin),
         stack.leadingAnchor()->constraintEqualToAnchor(leadingAnchor(), rowMargin),
         stack.trailingAnchor()->constraintEqualToAnchor(trailingAnchor(), -rowMargin),
         stack.centerXAnchor()->constraintEqualToAnchor(centerXAnchor())});
}
