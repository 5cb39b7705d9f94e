#include "documents/DocumentPickerView.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "controls/UIButtonPeer.h"
#include "screen/HostFileDialog.h"

#include <utility>

namespace {

const Class classObject = Class::define<DocumentPickerView, UIView>("DocumentPickerView");

constexpr double barHeight = 50;

} // namespace

DocumentPickerView::DocumentPickerView(const Ref<UIView>& pages, std::function<void()> browse)
    : pages_(pages) {
    setBackgroundColor(DesktopColor::system(SystemColor::SecondaryGroupedBackground));
    line_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    addSubview(pages_);
    if (!browse)
        return;
    button_ = make<UIButton>();
    auto& button = peerOf<UIButtonPeer>(*button_);
    button.setTitle(systemText(HostFileDialog::buttonTitle));
    button.setFontStyle({.size = 17});
    button.addHandler(UIControlEvents::TouchUpInside, std::move(browse));
    addSubview(line_);
    addSubview(button_);
}

void DocumentPickerView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto bar = button_ ? barHeight + peer().safeAreaInsets().bottom : 0;
    pages_->setFrame(CGRectMake(0, 0, size.width, size.height - bar));
    if (!button_)
        return;
    line_->setFrame(CGRectMake(0, size.height - bar, size.width, 1 / peer().traits().displayScale));
    button_->setFrame(CGRectMake(0, size.height - bar, size.width, barHeight));
}
