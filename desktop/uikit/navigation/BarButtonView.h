#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "controllers/DesktopBarButtonItem.h"
#include "menus/MenuPresentation.h"
#include "navigation/BarControl.h"

/// Shows one bar button item. A finger that comes down on it opens its menu, and may slide on into that. Made
/// by the bar's content.
class BarButtonView final : public BarControl {
public:
    explicit BarButtonView(const Ref<DesktopBarButtonItem>& item);

    [[nodiscard]] const Ref<DesktopBarButtonItem>& item() const { return item_; }

    /// Of what the button shows, in points; the button itself may be wider.
    [[nodiscard]] double contentWidth() const;

    // UIControl:
    bool beginTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    bool continueTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void endTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void cancelTrackingWithEvent(UIEvent* event) override;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] UIView& shown() const;
    void updateTint();
    void openMenu();

    Ref<DesktopBarButtonItem> item_;
    Ref<UIImageView> image_; ///< empty for a button with a title
    Ref<UILabel> label_;     ///< empty for a button with an image
    Weak<MenuPresentation> menu_;
};
