#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIControl.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"

/// An on/off switch: a pill-shaped track with a round thumb that follows the finger across the middle. Each
/// half of the track can carry an image and a text, and the thumb an image. It sends the value-changed event
/// when a finger has changed its value, and no other.
class GlintImageSwitch final : public UIControl {
public:
    // UIView:
    /// A switch of 50 x 30 points.
    [[nodiscard]] bool init() override;
    /// \param frame an empty one stands for 50 x 30 points at the origin
    [[nodiscard]] bool initWithFrame(const CGRect& frame) override;
    [[nodiscard]] bool initWithCoder(NSCoder& coder) override;
    void layoutSubviews() override;

    // UIControl:
    bool beginTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    bool continueTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void endTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void cancelTrackingWithEvent(UIEvent* event) override;

    [[nodiscard]] bool isOn() const { return switchValue_; }

    /// At once, and without an event.
    void setOn(bool on);
    /// Without an event.
    void setOn(bool on, bool animated);
    /// Bring the look to one of the states, whatever the value is.
    void showOnAnimated(bool animated);
    void showOffAnimated(bool animated);

    /// Whether the ends are half circles; else the corners have a radius of 2 points.
    [[nodiscard]] bool isRounded() const { return rounded_; }

    void setRounded(bool rounded);

    /// The track while a finger is on a switch that is off.
    [[nodiscard]] const Ref<UIColor>& activeColor() const { return activeColor_; }

    void setActiveColor(const Ref<UIColor>& color);

    /// The track of a switch that is off and at rest.
    [[nodiscard]] const Ref<UIColor>& inactiveColor() const { return inactiveColor_; }

    void setInactiveColor(const Ref<UIColor>& color);

    /// The track and its border when the switch is on.
    [[nodiscard]] const Ref<UIColor>& onTintColor() const { return onTintColor_; }

    void setOnTintColor(const Ref<UIColor>& color);

    /// The track's border when the switch is off.
    [[nodiscard]] const Ref<UIColor>& borderColor() const { return borderColor_; }

    void setBorderColor(const Ref<UIColor>& color);

    /// The thumb; when the switch is on, only as long as no colour has been set for that.
    [[nodiscard]] const Ref<UIColor>& thumbTintColor() const { return thumbTintColor_; }

    void setThumbTintColor(const Ref<UIColor>& color);

    /// The thumb of a switch that is on.
    [[nodiscard]] const Ref<UIColor>& onThumbTintColor() const { return onThumbTintColor_; }

    void setOnThumbTintColor(const Ref<UIColor>& color);

    [[nodiscard]] const Ref<UIColor>& shadowColor() const { return shadowColor_; }

    void setShadowColor(const Ref<UIColor>& color);

    [[nodiscard]] Ref<UIImage> thumbImage() const { return thumbImageView_->image(); }

    void setThumbImage(const Ref<UIImage>& image) { thumbImageView_->setImage(image); }

    [[nodiscard]] Ref<UIImage> onImage() const { return onImageView_->image(); }

    void setOnImage(const Ref<UIImage>& image) { onImageView_->setImage(image); }

    [[nodiscard]] Ref<UIImage> offImage() const { return offImageView_->image(); }

    void setOffImage(const Ref<UIImage>& image) { offImageView_->setImage(image); }

    [[nodiscard]] const Ref<UILabel>& onLabel() const { return onLabel_; }

    [[nodiscard]] const Ref<UILabel>& offLabel() const { return offLabel_; }

    [[nodiscard]] const Ref<UIView>& backgroundView() const { return backgroundView_; }

    [[nodiscard]] const Ref<UIView>& thumbView() const { return thumbView_; }

private:
    void setupGlintImageSwitch();
    void setupDefaults();
    void setupTrack();
    void setupTrackContents();
    void setupThumb();
    void updateThumbShadowPath();
    void animate(void (GlintImageSwitch::*changes)());
    void applyOnLook();
    void applyOffLook();
    void applyPressedLook();
    void setTrackContentsOn(bool on);
    void setThumbFrame(double x, double width);

    bool rounded_ = true;
    bool currentVisualValue_ = false;
    bool startTrackingValue_ = false;
    bool didChangeWhileTracking_ = false;
    bool isAnimating_ = false; ///< layout leaves the frames alone
    bool userDidSpecifyOnThumbTintColor_ = false;
    bool switchValue_ = false;
    Ref<UIColor> activeColor_;
    Ref<UIColor> inactiveColor_;
    Ref<UIColor> onTintColor_;
    Ref<UIColor> borderColor_;
    Ref<UIColor> thumbTintColor_;
    Ref<UIColor> onThumbTintColor_;
    Ref<UIColor> shadowColor_;
    Ref<UILabel> onLabel_;
    Ref<UILabel> offLabel_;
    Ref<UIView> backgroundView_;
    Ref<UIView> thumbView_;
    Ref<UIImageView> onImageView_;
    Ref<UIImageView> offImageView_;
    Ref<UIImageView> thumbImageView_;
};
