#pragma once

#include "Preferences/PSControlTableCell.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIStackView.h"
#include "UIKit/UIVisualEffectView.h"

#include <optional>
#include <string>

/// The head of a page: a translucent card with the bundle's icon, a title with the version, and a
/// description, which fades in. Title and description are the row's properties when the cell is made. Made by
/// the framework, by name.
class CxHeaderCell final : public PSControlTableCell {
public:
    [[nodiscard]] const Ref<UIStackView>& mainStackView() const { return mainStackView_; }

    [[nodiscard]] const Ref<UILabel>& descriptionLabel() const { return descriptionLabel_; }

    // PSTableCell:
    using PSControlTableCell::initWithStyle;
    [[nodiscard]] bool initWithStyle(UITableViewCellStyle style,
                                     const std::optional<std::string>& reuseIdentifier,
                                     PSSpecifier& specifier) override;

private:
    void setupContentView();
    void setupGradientBackground();
    void setupBlurEffect();
    void setupStackView();
    void setupIconImageView();
    void setupTitleLabel(const PSSpecifier& specifier);
    void setupDescriptionLabel(const PSSpecifier& specifier);
    void applyConstraints();
    void animateAppearance();
    /// The view lies on the card.
    void placeOnCard(const UIView& view);

    Ref<UIStackView> mainStackView_;
    Ref<UILabel> descriptionLabel_;
};
