#pragma once

#include "DesktopImage.h"
#include "UIKit/UIImageView.h"
#include "views/UIViewPeer.h"

#include <optional>

/// The desktop's half of an image view: the image, and where it lies in the bounds. Made with the view.
class UIImageViewPeer : public UIViewPeer {
public:
    using Object = UIImageView;

    UIImageViewPeer();

    /// Empty when there is none.
    [[nodiscard]] const Ref<DesktopImage>& image() const { return image_; }

    void setImage(const Ref<DesktopImage>& image);

    /// Where the image lies within the bounds, by the content mode; larger than they are when it overflows
    /// them. \pre there is an image
    [[nodiscard]] CGRect imageRect(const CGRect& bounds) const;

    // UIViewPeer:
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicWidth() const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    void tintColorDidChange() override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;
    [[nodiscard]] CGRect contentsRect(const CGRect& bounds) const override;

private:
    Ref<DesktopImage> image_;
};
