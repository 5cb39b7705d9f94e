#include "views/UIImageViewPeer.h"

#include "DesktopColor.h"
#include "RectGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

/// A rectangle of that size in the middle of another one.
CGRect centered(CGSize size, const CGRect& bounds) {
    return CGRectMake(CGRectGetMidX(bounds) - size.width / 2, CGRectGetMidY(bounds) - size.height / 2,
                      size.width, size.height);
}

CGSize scaled(CGSize size, double factor) {
    return {size.width * factor, size.height * factor};
}

/// Moved to whole pixels, as a picture that is not resized is.
CGRect onPixels(CGRect rect, double scale) {
    rect.origin.x = std::round(rect.origin.x * scale) / scale;
    rect.origin.y = std::round(rect.origin.y * scale) / scale;
    return rect;
}

} // namespace

UIImageViewPeer::UIImageViewPeer() {
    setUserInteractionEnabled(false);
}

void UIImageViewPeer::setImage(const Ref<DesktopImage>& image) {
    if (image_ == image)
        return;
    image_ = image;
    setNeedsDisplay();
    setNeedsConstraintLayout();
    setNeedsConstraintLayout();
}

CGRect UIImageViewPeer::imageRect(const CGRect& bounds) const {
    const auto size = image_->size();
    const auto widthFactor = bounds.size.width / size.width;
    const auto heightFactor = bounds.size.height / size.height;
    switch (contentMode()) {
    case UIViewContentMode::ScaleToFill:
        break;
    case UIViewContentMode::ScaleAspectFit:
        return centered(scaled(size, std::min(widthFactor, heightFactor)), bounds);
    case UIViewContentMode::ScaleAspectFill:
        return centered(scaled(size, std::max(widthFactor, heightFactor)), bounds);
    case UIViewContentMode::Center:
        return onPixels(centered(size, bounds), traits().displayScale);
    }
    return bounds;
}

CGSize UIImageViewPeer::sizeThatFits(CGSize room) const {
    return image_ ? image_->size() : UIViewPeer::sizeThatFits(room);
}

std::optional<double> UIImageViewPeer::intrinsicWidth() const {
    return image_ ? std::optional(image_->size().width) : std::nullopt;
}

std::optional<double> UIImageViewPeer::intrinsicHeight() const {
    return image_ ? std::optional(image_->size().height) : std::nullopt;
}

void UIImageViewPeer::tintColorDidChange() {
    if (image_ && image_->isTemplate())
        setNeedsDisplay();
}

PropertyList::Dictionary UIImageViewPeer::inspectedProperties() const {
    if (!image_)
        return {};
    PropertyList::Dictionary properties{
        {"imageSize", PropertyList::Array{image_->size().width, image_->size().height}},
        {"template", image_->isTemplate()}};
    if (!image_->symbolName().empty())
        properties.emplace("symbol", image_->symbolName());
    return properties;
}

void UIImageViewPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) {
    if (image_ && !CGRectIsEmpty(bounds))
        image_->draw(painter, imageRect(bounds), DesktopColor::resolve(tintColor(), traits));
}

CGRect UIImageViewPeer::contentsRect(const CGRect& bounds) const {
    return image_ && !CGRectIsEmpty(bounds) ? imageRect(bounds) : bounds;
}
