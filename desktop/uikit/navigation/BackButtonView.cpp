#include "navigation/BackButtonView.h"

#include "CALayerPeer.h"
#include "DesktopFont.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "screen/Screen.h"
#include "views/UIImageViewPeer.h"
#include "views/UILabelPeer.h"

namespace {

const Class classObject = Class::define<BackButtonView, BarControl>("BackButtonView");

constexpr auto titleSize = 17.0;
constexpr auto chevronSize = 22.0; ///< the symbol's point size: it is 21 points high

} // namespace

BackButtonView::BackButtonView(const std::string& previousTitle)
    : chevron_(make<UIImageView>()),
      label_(make<UILabel>()) {
    if (!previousTitle.empty())
        titles_.push_back(previousTitle);
    if (const auto shortTitle = systemText("Back"); previousTitle != shortTitle)
        titles_.push_back(shortTitle);
    const auto isRightToLeft = Screen::current().traits().rightToLeft;
    chevron_->setImage(DesktopImage::symbol(isRightToLeft ? "chevron.right" : "chevron.left", chevronSize,
                                            SymbolWeight::Semibold));
    chevron_->setContentMode(UIViewContentMode::Center);
    label_->setFont(DesktopFont::font(titleSize));
    for (const auto& title : titles_) {
        label_->setText(title);
        widths_.push_back(label_->peer().sizeThatFits({}).width);
    }
    showTitle(0);
    for (const auto& view : {Ref<UIView>(chevron_), Ref<UIView>(label_)})
        view->layer().peer().keepsPicture = true;
    content().addSubview(chevron_);
    content().addSubview(label_);
    peer().setAccessibility(
        {.label = titles_.front(), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
}

void BackButtonView::showTitle(std::optional<std::size_t> index) {
    label_->setText(index ? std::optional(titles_[*index]) : std::nullopt);
    peer().setNeedsLayout();
}

void BackButtonView::placeTitle(double shift, double alpha) {
    label_->peer().setTransform(AffineTransform::translation(shift, 0));
    label_->setAlpha(alpha);
}

void BackButtonView::setChevronAlpha(double alpha) {
    chevron_->setAlpha(alpha);
}

void BackButtonView::layoutSubviews() {
    BarControl::layoutSubviews();
    label_->setTextColor(peer().tintColor());
    const auto height = bounds().size.height;
    peer().place(*chevron_, CGRectMake(chevronStart, 0, chevronEnd - chevronStart, height));
    const auto size = label_->peer().sizeThatFits({});
    label_->peer().setBounds({{}, size});
    label_->setCenter(peer().fromLeading(CGPoint{titleStart + size.width / 2, height / 2}));
}
