#include "sharing/ShareHeaderView.h"

#include "DesktopColor.h"
#include "DesktopFont.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "controls/UIControlPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<ShareHeaderView, UIView>("ShareHeaderView");

constexpr double margin = 16;
constexpr double symbolWidth = 40;
constexpr double symbolSize = 34;
constexpr double titleSize = 15;
constexpr double detailSize = 13;
constexpr double lineHeight = 20;
constexpr double closeSize = 30;
constexpr double crossSize = 13;

} // namespace

ShareHeaderView::ShareHeaderView(const std::string& title, const std::string& detail,
                                 std::function<void()> close) {
    symbol_->setImage(DesktopImage::symbol("doc.fill", symbolSize));
    symbol_->setContentMode(UIViewContentMode::Center);
    symbol_->setTintColor(DesktopColor::system(SystemColor::Gray2));
    title_->setText(title);
    title_->setFont(DesktopFont::font(titleSize, FontWeight::Semibold));
    detail_->setText(detail);
    detail_->setFont(DesktopFont::font(detailSize));
    detail_->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    line_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    for (const auto& view : std::initializer_list<Ref<UIView>>{symbol_, title_, detail_, line_})
        addSubview(view);
    if (close)
        addCloseButton(std::move(close));
}

void ShareHeaderView::addCloseButton(std::function<void()> close) {
    close_ = make<UIControl>();
    close_->setBackgroundColor(DesktopColor::system(SystemColor::SecondaryFill));
    close_->layer().setCornerRadius(closeSize / 2);
    auto& button = peerOf<UIControlPeer>(*close_);
    button.setAccessibility(
        {.label = systemText("Close"), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
    button.addHandler(UIControlEvents::TouchUpInside, std::move(close));
    const auto cross = make<UIImageView>();
    cross->setFrame(CGRectMake(0, 0, closeSize, closeSize));
    cross->setContentMode(UIViewContentMode::Center);
    cross->setImage(DesktopImage::symbol("xmark", crossSize, SymbolWeight::Semibold));
    cross->setTintColor(DesktopColor::system(SystemColor::SecondaryLabel));
    cross->setUserInteractionEnabled(false);
    close_->addSubview(cross);
    addSubview(close_);
}

void ShareHeaderView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto width = bounds().size.width;
    const auto right = width - margin - (close_ ? closeSize + margin : 0);
    const auto left = 2 * margin + symbolWidth;
    peer().place(*symbol_, CGRectMake(margin, 0, symbolWidth, height));
    peer().place(*title_, CGRectMake(left, height / 2 - lineHeight, right - left, lineHeight));
    peer().place(*detail_, CGRectMake(left, height / 2, right - left, lineHeight));
    const auto line = 1 / peer().traits().displayScale;
    line_->setFrame(CGRectMake(0, height - line, width, line));
    if (close_)
        peer().place(*close_,
                     CGRectMake(width - margin - closeSize, (height - closeSize) / 2, closeSize, closeSize));
}
