#include "OBHeaderView.h"

#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "views/UILabelPeer.h"
#include "views/WrappedLabel.h"

#include <algorithm>
#include <cmath>

namespace {

const Class classObject = Class::define<OBHeaderView, UIView>("OBHeaderView");

constexpr FontStyle titleStyle{.size = 34, .weight = FontWeight::Bold};
constexpr FontStyle detailStyle{.size = 17};
constexpr std::size_t titleLines = 3;
constexpr double imageTop = 60;
constexpr double titleTopWithoutImage = 65;
constexpr double gapBelowImage = 20;
constexpr double gapBelowTitle = 10;
constexpr double symbolHeight = 64;
constexpr double pictureHeightAtLeast = 60;
constexpr double pictureHeightAtMost = 80;

double shownHeightOf(const UIImage& image) {
    const auto* const drawn = dynamic_cast<const DesktopImage*>(&image);
    if (drawn != nullptr && !drawn->symbolName().empty())
        return symbolHeight;
    return std::clamp(DesktopImage::sizeOf(image).height, pictureHeightAtLeast, pictureHeightAtMost);
}

} // namespace

OBHeaderView::OBHeaderView()
    : image_(make<UIImageView>()),
      title_(wrappedLabel({}, titleStyle, SystemColor::Label, NSTextAlignment::Center)),
      detail_(wrappedLabel({}, detailStyle, SystemColor::SecondaryLabel, NSTextAlignment::Center)) {
    peerOf<UILabelPeer>(*title_).setNumberOfLines(titleLines);
    image_->setContentMode(UIViewContentMode::ScaleAspectFit);
    addSubview(image_);
    addSubview(title_);
    addSubview(detail_);
}

void OBHeaderView::setContent(const Content& content) {
    content_ = content;
    image_->setImage(content.image);
    title_->setText(content.title);
    detail_->setText(content.detail);
    peer().setNeedsLayout();
}

CGRect OBHeaderView::imageFrame(double width) const {
    if (!content_.image)
        return {};
    const auto height = shownHeightOf(*content_.image);
    const auto size = DesktopImage::sizeOf(*content_.image);
    const auto shown = std::min(width, std::ceil(height * size.width / size.height));
    return CGRectMake(std::floor((width - shown) / 2), imageTop, shown, height);
}

CGRect OBHeaderView::titleFrame(double width) const {
    const auto top = content_.image ? CGRectGetMaxY(imageFrame(width)) + gapBelowImage : titleTopWithoutImage;
    return CGRectMake(0, top, width, heightOf(*title_, width));
}

CGRect OBHeaderView::detailFrame(double width) const {
    const auto top = CGRectGetMaxY(titleFrame(width));
    if (content_.detail.empty())
        return CGRectMake(0, top, width, 0);
    return CGRectMake(0, top + gapBelowTitle, width, heightOf(*detail_, width));
}

double OBHeaderView::heightForWidth(double width) const {
    return CGRectGetMaxY(detailFrame(width));
}

void OBHeaderView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto width = bounds().size.width;
    image_->setFrame(imageFrame(width));
    title_->setFrame(titleFrame(width));
    detail_->setFrame(detailFrame(width));
}
