#include "alerts/AlertButtonView.h"

#include "DesktopColor.h"
#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "alerts/AlertLayout.h"
#include "views/UILabelPeer.h"

namespace {

const Class classObject = Class::define<AlertButtonView, UIView>("AlertButtonView");

constexpr double fontSize = 17;
constexpr double leastScale = 0.6; ///< of a title that is too long

} // namespace

class AlertButtonView::Peer final : public UIViewPeer {
public:
    // UIViewPeer:
    void tintColorDidChange() override {
        UIViewPeer::tintColorDidChange();
        dynamic_cast<AlertButtonView&>(view()).showTint();
    }
};

AlertButtonView::AlertButtonView(const Ref<DesktopAlertAction>& action)
    : UIView(std::make_unique<Peer>()),
      action_(action),
      highlight_(make<UIView>()),
      lineAbove_(make<UIView>()),
      lineBeside_(make<UIView>()),
      label_(make<UILabel>()) {
    const auto cancels = action->style() == UIAlertActionStyle::Cancel;
    highlight_->setBackgroundColor(DesktopColor::system(SystemColor::AlertPressedButton));
    highlight_->peer().setHidden(true);
    lineAbove_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    lineBeside_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    label_->setText(action->title());
    label_->setTextAlignment(NSTextAlignment::Center);
    label_->setFont(DesktopFont::font(fontSize, cancels ? FontWeight::Semibold : FontWeight::Regular));
    peerOf<UILabelPeer>(*label_).setAdjustsFontSizeToFitWidth(true);
    peerOf<UILabelPeer>(*label_).setMinimumScaleFactor(leastScale);
    for (const auto& view : std::initializer_list<Ref<UIView>>{highlight_, lineAbove_, lineBeside_, label_})
        addSubview(view);
    setUserInteractionEnabled(false);
    peer().setAccessibility(
        {.label = action->title(), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
}

double AlertButtonView::titleWidth() const {
    return peerOf<UILabelPeer>(*label_).intrinsicWidth().value_or(0);
}

void AlertButtonView::showTint() {
    const auto destroys = action_->style() == UIAlertActionStyle::Destructive;
    label_->setTextColor(destroys ? DesktopColor::system(SystemColor::Red) : peer().tintColor());
}

void AlertButtonView::setHighlighted(bool highlighted) {
    highlight_->peer().setHidden(!highlighted);
}

void AlertButtonView::setHasLines(bool above, bool beside) {
    lineAbove_->peer().setHidden(!above);
    lineBeside_->peer().setHidden(!beside);
}

void AlertButtonView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto line = 1 / peer().traits().displayScale;
    const auto inside = CGRectMake(0, line, size.width, size.height - line);
    highlight_->setFrame(inside);
    lineAbove_->setFrame(CGRectMake(0, 0, size.width, line));
    peer().place(*lineBeside_, CGRectMake(0, line, line, size.height - line));
    label_->setFrame(CGRectMake(AlertLayout::buttonMargin, line, size.width - 2 * AlertLayout::buttonMargin,
                                size.height - line));
}
