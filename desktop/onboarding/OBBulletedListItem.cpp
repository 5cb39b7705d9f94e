#include "OBBulletedListItem.h"

#include "ObjectiveC/Class.h"
#include "touches/TapGestureRecognizer.h"
#include "views/UIViewPeer.h"
#include "views/WrappedLabel.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

const Class classObject = Class::define<OBBulletedListItem, UIView>("OBBulletedListItem");

constexpr double imageWidth = 40;
constexpr double imageHeight = 32;
constexpr double gapAfterImage = 16;
constexpr double gapBelowTitle = 2;
constexpr double textStart = imageWidth + gapAfterImage;
constexpr FontStyle titleStyle{.size = 17, .weight = FontWeight::Semibold};
constexpr FontStyle descriptionStyle{.size = 15};

} // namespace

/// An item that a tap is watched for is a button.
class OBBulletedListItem::Peer final : public UIViewPeer {
public:
    // UIViewPeer:
    [[nodiscard]] Accessibility accessibility() const override {
        const auto& item = dynamic_cast<const OBBulletedListItem&>(view());
        if (!item.isTappable())
            return UIViewPeer::accessibility();
        return {.label = item.content().title,
                .value = item.content().description,
                .role = AccessibilityRole::Button,
                .isElement = true};
    }
};

OBBulletedListItem::OBBulletedListItem(const Content& content)
    : UIView(std::make_unique<Peer>()),
      content_(content),
      image_(make<UIImageView>()),
      title_(wrappedLabel(content.title, titleStyle, SystemColor::Label)) {
    image_->setImage(content.image);
    image_->setContentMode(UIViewContentMode::ScaleAspectFit);
    addSubview(image_);
    addSubview(title_);
    if (content.description.empty())
        return;
    description_ = wrappedLabel(content.description, descriptionStyle, SystemColor::SecondaryLabel);
    addSubview(description_);
}

bool OBBulletedListItem::isTappable() const {
    const auto isTap = [](const Ref<AttachedRecognizer>& recognizer) {
        const auto tap = dynamicCast<TapGestureRecognizer>(recognizer);
        return tap && tap->isEnabled();
    };
    return peer().isUserInteractionEnabled() && std::ranges::any_of(peer().gestureRecognizers(), isTap);
}

double OBBulletedListItem::textHeight(double width) const {
    const auto title = heightOf(*title_, width - textStart);
    return description_ ? title + gapBelowTitle + heightOf(*description_, width - textStart) : title;
}

double OBBulletedListItem::heightForWidth(double width) const {
    return std::max(textHeight(width), imageHeight);
}

void OBBulletedListItem::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    peer().place(*image_, CGRectMake(0, (size.height - imageHeight) / 2, imageWidth, imageHeight));
    const auto titleHeight = heightOf(*title_, size.width - textStart);
    const auto top = std::max(0.0, (size.height - textHeight(size.width)) / 2);
    peer().place(*title_, CGRectMake(textStart, top, size.width - textStart, titleHeight));
    if (description_)
        peer().place(*description_,
                     CGRectMake(textStart, top + titleHeight + gapBelowTitle, size.width - textStart,
                                heightOf(*description_, size.width - textStart)));
}
