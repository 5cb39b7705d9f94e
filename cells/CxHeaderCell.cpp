#include "CxHeaderCell.h"

#include "Foundation/Format.h"
#include "Foundation/NSBundle.h"
#include "ObjectiveC/Class.h"
#include "QuartzCore/CAGradientLayer.h"
#include "SpecifierText.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "Version.h"

namespace {

constexpr auto iconName = "icon.png";
constexpr auto cardRadius = 15.0;
constexpr auto cardSideMargin = 15.0;
constexpr auto cardEndMargin = 10.0; ///< above and below
constexpr auto partGap = 20.0;
constexpr auto cardPadding = 20.0;
constexpr auto iconSide = 60.0;
constexpr auto fadeDuration = 0.3; ///< seconds

const Class classObject = Class::define<CxHeaderCell, PSControlTableCell>(
    "CxHeaderCell", {method<"mainStackView", &CxHeaderCell::mainStackView>(),
                     method<"descriptionLabel", &CxHeaderCell::descriptionLabel>()});

// The view is cut off at its bounds, so that its shadow stays unseen; that is meant.
void setupBlurEffectShadow(const UIView& view) {
    view.layer().setShadowColor(UIColor::blackColor());
    view.layer().setShadowOpacity(0.15);
    view.layer().setShadowOffset({0, 4.0});
    view.layer().setShadowRadius(8.0);
}

Ref<UIVisualEffectView> createBlurEffectView(const Ref<UIBlurEffect>& effect) {
    auto view = UIVisualEffectView::initWithEffect(effect);
    if (!view)
        return nullptr;
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    view->layer().setCornerRadius(cardRadius);
    view->setClipsToBounds(true);
    setupBlurEffectShadow(*view);
    return view;
}

Ref<UIImageView> createIconImageView(const Ref<UIImage>& image) {
    auto view = make<UIImageView>();
    view->setImage(image);
    view->layer().setMasksToBounds(true);
    view->setContentMode(UIViewContentMode::ScaleAspectFit);
    view->layer().setCornerRadius(20.0);
    view->layer().setBorderWidth(1.5);
    view->layer().setBorderColor(UIColor::colorWithWhite(1.0, 0.8));
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    NSLayoutConstraint::activateConstraints({view->widthAnchor()->constraintEqualToConstant(iconSide),
                                             view->heightAnchor()->constraintEqualToConstant(iconSide)});
    return view;
}

// An absent title is formatted like any absent value; that is meant.
Ref<UILabel> createTitleLabel(const PSSpecifier& specifier) {
    auto label = make<UILabel>();
    label->setText(stringWithFormat("%@ • %@", textOf(specifier, "title"), corvexVersion));
    label->setFont(UIFont::boldSystemFontOfSize(22.0));
    label->setTextAlignment(NSTextAlignment::Center);
    label->setTextColor(UIColor::colorWithRed(1.0, 0.8, 0.0, 0.9));
    label->setShadowColor(UIColor::colorWithWhite(0.0, 0.5));
    label->setShadowOffset({1.0, 1.0});
    label->setAdjustsFontForContentSizeCategory(true);
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    return label;
}

Ref<UILabel> createDescriptionLabel(const PSSpecifier& specifier) {
    auto label = make<UILabel>();
    label->setText(textOf(specifier, "description"));
    label->setFont(UIFont::systemFontOfSize(16.0, UIFontWeightLight));
    label->setTextAlignment(NSTextAlignment::Center);
    label->setTextColor(UIColor::colorWithWhite(0.9, 0.6));
    label->setNumberOfLines(0);
    label->setAdjustsFontForContentSizeCategory(true);
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    return label;
}

} // namespace

bool CxHeaderCell::initWithStyle(UITableViewCellStyle style,
                                 const std::optional<std::string>& reuseIdentifier, PSSpecifier& specifier) {
    if (!PSControlTableCell::initWithStyle(style, reuseIdentifier, specifier))
        return false;
    setupContentView();
    setupGradientBackground();
    setupBlurEffect();
    setupStackView();
    setupIconImageView();
    setupTitleLabel(specifier);
    setupDescriptionLabel(specifier);
    applyConstraints();
    animateAppearance();
    return true;
}

void CxHeaderCell::setupContentView() {
    contentView().setBackgroundColor(UIColor::clearColor());
}

// The gradient keeps the size that the content has now; that is meant.
void CxHeaderCell::setupGradientBackground() {
    const auto gradient = make<CAGradientLayer>();
    gradient->setColors({UIColor::colorWithWhite(0.1, 0.3), UIColor::colorWithWhite(0.2, 0.3)});
    gradient->setStartPoint({0, 0});
    gradient->setEndPoint({1, 1});
    gradient->setFrame(contentView().bounds());
    gradient->setCornerRadius(cardRadius);
    contentView().layer().insertSublayer(gradient, 0);
}

void CxHeaderCell::setupBlurEffect() {
    const auto view = createBlurEffectView(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::Regular));
    if (!view)
        return;
    contentView().addSubview(view);
    placeOnCard(*view);
}

void CxHeaderCell::setupStackView() {
    mainStackView_ = make<UIStackView>();
    mainStackView_->setAxis(UILayoutConstraintAxis::Vertical);
    mainStackView_->setAlignment(UIStackViewAlignment::Center);
    mainStackView_->setSpacing(partGap);
    mainStackView_->setDistribution(UIStackViewDistribution::Fill);
    mainStackView_->setTranslatesAutoresizingMaskIntoConstraints(false);
    mainStackView_->setLayoutMargins({cardPadding, cardPadding, cardPadding, cardPadding});
    mainStackView_->setLayoutMarginsRelativeArrangement(true);
    contentView().addSubview(mainStackView_);
}

void CxHeaderCell::setupIconImageView() {
    const auto bundle = NSBundle::bundleForClass(isa());
    mainStackView_->addArrangedSubview(
        createIconImageView(bundle ? UIImage::imageNamed(iconName, *bundle) : nullptr));
}

void CxHeaderCell::setupTitleLabel(const PSSpecifier& specifier) {
    mainStackView_->addArrangedSubview(createTitleLabel(specifier));
}

void CxHeaderCell::setupDescriptionLabel(const PSSpecifier& specifier) {
    descriptionLabel_ = createDescriptionLabel(specifier);
    mainStackView_->addArrangedSubview(descriptionLabel_);
}

void CxHeaderCell::applyConstraints() {
    placeOnCard(*mainStackView_);
}

void CxHeaderCell::placeOnCard(const UIView& view) {
    const auto& content = contentView();
    NSLayoutConstraint::activateConstraints(
        {view.leadingAnchor()->constraintEqualToAnchor(content.leadingAnchor(), cardSideMargin),
         view.trailingAnchor()->constraintEqualToAnchor(content.trailingAnchor(), -cardSideMargin),
         view.topAnchor()->constraintEqualToAnchor(content.topAnchor(), cardEndMargin),
         view.bottomAnchor()->constraintEqualToAnchor(content.bottomAnchor(), -cardEndMargin)});
}

void CxHeaderCell::animateAppearance() {
    auto content = retain(&contentView());
    content->setAlpha(0);
    UIView::animateWithDuration(fadeDuration, 0, UIViewAnimationOptions::None,
                                [content = std::move(content)] { content->setAlpha(1); }, {});
}
