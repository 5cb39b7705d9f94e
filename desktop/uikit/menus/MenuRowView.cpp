#include "menus/MenuRowView.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<MenuRowView, UIView>("MenuRowView");

constexpr auto margin = 16.0;
constexpr auto gap = 8.0;
constexpr auto imageSize = 20.0; ///< the symbol's point size, and the width of the images' column

} // namespace

MenuRowView::MenuRowView(const Ref<DesktopAction>& action)
    : action_(action),
      highlight_(make<UIView>()),
      separator_(make<UIView>()),
      label_(make<UILabel>()),
      image_(make<UIImageView>()) {
    highlight_->setBackgroundColor(DesktopColor::system(SystemColor::Fill));
    highlight_->peer().setHidden(true);
    separator_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    label_->setText(action->title());
    label_->setTextColor(color());
    const auto symbol = dynamicCast<DesktopImage>(action->image());
    image_->setContentMode(UIViewContentMode::Center);
    image_->setImage(symbol && !symbol->symbolName().empty()
                         ? Ref<UIImage>(DesktopImage::symbol(symbol->symbolName(), imageSize))
                         : action->image());
    image_->peer().setTintColor(color());
    for (const auto& view : std::initializer_list<Ref<UIView>>{highlight_, separator_, label_, image_})
        addSubview(view);
    setUserInteractionEnabled(false);
    peer().setAccessibility(
        {.label = action->title(), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
}

Ref<UIColor> MenuRowView::color() const {
    if (action_->isDisabled())
        return DesktopColor::system(SystemColor::TertiaryLabel);
    return DesktopColor::system(action_->isDestructive() ? SystemColor::Red : SystemColor::Label);
}

void MenuRowView::setHighlighted(bool highlighted) {
    highlight_->peer().setHidden(!highlighted);
}

void MenuRowView::setHasSeparator(bool has) {
    separator_->peer().setHidden(!has);
}

void MenuRowView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    highlight_->setFrame(bounds());
    separator_->setFrame(CGRectMake(0, 0, size.width, 1 / peer().traits().displayScale));
    const auto imageWidth = image_->image() ? imageSize : 0;
    peer().place(*image_, CGRectMake(size.width - margin - imageSize, 0, imageSize, size.height));
    const auto labelWidth = size.width - 2 * margin - (imageWidth > 0 ? imageWidth + gap : 0);
    peer().place(*label_, CGRectMake(margin, 0, labelWidth, size.height));
}
