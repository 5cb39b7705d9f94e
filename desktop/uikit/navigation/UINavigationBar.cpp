#include "navigation/UINavigationBar.h"

#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<UINavigationBar, UIView>("UINavigationBar");

constexpr auto padRowHeight = 50.0;

/// Leaves the room of the large title to the page below.
class UINavigationBarPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    [[nodiscard]] bool pointInside(CGPoint point) const override {
        return UIViewPeer::pointInside(point) && point.y < rowHeight;
    }

    double rowHeight = UINavigationBar::phoneRowHeight;
};

} // namespace

UINavigationBar::UINavigationBar()
    : UIView(std::make_unique<UINavigationBarPeer>()),
      background_(make<BarBackgroundView>()),
      leavingBackground_(make<BarBackgroundView>()) {
    addSubview(leavingBackground_);
    addSubview(background_);
}

double UINavigationBar::rowHeight(Idiom idiom) {
    return idiom == Idiom::Phone ? phoneRowHeight : padRowHeight;
}

void UINavigationBar::place(double top, double width, double rowHeight) {
    top_ = top;
    width_ = width;
    rowHeight_ = rowHeight;
    peerOf<UINavigationBarPeer>(*this).rowHeight = rowHeight;
    update();
}

void UINavigationBar::show(const Ref<NavigationBarContentView>& content) {
    for (const auto& old : {leaving_, content_}) {
        if (old && old != content)
            old->peer().removeFromSuperview();
    }
    leaving_ = nullptr;
    content_ = content;
    progress_ = 1;
    if (content_->peer().superview() != this)
        addSubview(content_);
    content_->setKeepsChevron(false);
    content_->setPhase(0);
    update();
}

void UINavigationBar::showBetween(const Between& between) {
    leaving_ = between.from;
    content_ = between.to;
    progress_ = between.progress;
    isPush_ = between.isPush;
    if (content_->peer().superview() != this)
        addSubview(content_);
    update();
}

void UINavigationBar::contentChanged() {
    update();
}

void UINavigationBar::update() {
    if (!content_)
        return;
    for (const auto& content : {leaving_, content_}) {
        if (content)
            content->setRowHeight(rowHeight_);
    }
    auto height = content_->height();
    if (leaving_)
        height += (leaving_->height() - height) * (1 - progress_);
    setFrame(CGRectMake(0, top_, width_, height));
    placeBackgrounds(height + top_);
    for (const auto& content : {leaving_, content_}) {
        if (content)
            content->setFrame(CGRectMake(0, 0, width_, content->height()));
    }
}

void UINavigationBar::placeBackgrounds(double height) {
    const auto shown = leaving_ ? progress_ * width_ : width_;
    const auto hidden = width_ - shown;
    background_->setFrame(CGRectMake(isPush_ ? hidden : 0, -top_, shown, height));
    background_->setAlpha(content_->backgroundAlpha());
    leavingBackground_->setFrame(CGRectMake(isPush_ ? 0 : shown, -top_, hidden, height));
    leavingBackground_->setAlpha(leaving_ ? leaving_->backgroundAlpha() : 0);
}
