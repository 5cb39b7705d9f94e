#include "navigation/LargeTitleView.h"

#include "CALayerPeer.h"
#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "navigation/NavigationBarLayout.h"
#include "views/UILabelPeer.h"

#include <algorithm>

namespace {

const Class classObject = Class::define<LargeTitleView, UIView>("LargeTitleView");

constexpr auto titleSize = 34.0;
constexpr auto gapBelow = 8.0;
constexpr auto largestScale = 1.1;
constexpr auto pullToLargest = 150.0; ///< points that the page is pulled down

} // namespace

LargeTitleView::LargeTitleView() : label_(make<UILabel>()) {
    setUserInteractionEnabled(false);
    setClipsToBounds(true);
    label_->setFont(DesktopFont::font(titleSize, FontWeight::Bold));
    label_->layer().peer().keepsPicture = true;
    addSubview(label_);
}

void LargeTitleView::setTitle(const std::string& title) {
    label_->setText(title);
    label_->peer().setAccessibility(
        {.label = title, .value = {}, .role = AccessibilityRole::Header, .isElement = true});
}

void LargeTitleView::setOverlap(double points) {
    overlap_ = points;
    peer().setNeedsLayout();
}

void LargeTitleView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto margin = barMargin(peer().traits());
    const auto room = std::max(0.0, bounds().size.width - 2 * margin);
    const auto size = label_->peer().sizeThatFits({room, height});
    label_->peer().setBounds(CGRectMake(0, 0, std::min(size.width, room), size.height));
    label_->layer().peer().anchorPoint = {peer().isRightToLeft() ? 1.0 : 0.0, 1};
    label_->setCenter(peer().fromLeading(CGPoint{margin, height - gapBelow - overlap_}));
    const auto pulled = std::clamp(-overlap_ / pullToLargest, 0.0, 1.0);
    const auto fitting = size.width > 0 ? std::max(1.0, room / size.width) : 1;
    label_->peer().setTransform(AffineTransform::scale(std::min(1 + (largestScale - 1) * pulled, fitting)));
}
