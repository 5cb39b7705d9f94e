#include "navigation/UINavigationBarPeer.h"

#include "controllers/DesktopNavigationItem.h"

namespace {

constexpr auto padRowHeight = 50.0;

} // namespace

UINavigationBarPeer::UINavigationBarPeer()
    : background_(make<BarBackgroundView>()),
      leavingBackground_(make<BarBackgroundView>()) {}

void UINavigationBarPeer::viewMade() {
    addSubview(leavingBackground_);
    addSubview(background_);
}

double UINavigationBarPeer::rowHeight(Idiom idiom) {
    return idiom == Idiom::Phone ? phoneRowHeight : padRowHeight;
}

void UINavigationBarPeer::place(double top, double width, double rowHeight) {
    top_ = top;
    width_ = width;
    rowHeight_ = rowHeight;
    update();
}

void UINavigationBarPeer::setItems(const std::vector<Ref<UINavigationItem>>& items) {
    standsAlone_ = true;
    const auto item = items.empty() ? nullptr : dynamicCast<DesktopNavigationItem>(items.back());
    if (item) {
        show(make<NavigationBarContentView>(item, NavigationBarContentView::Options()));
    } else if (content_) {
        content_->peer().removeFromSuperview();
        content_ = nullptr;
    }
}

void UINavigationBarPeer::show(const Ref<NavigationBarContentView>& content) {
    for (const auto& old : {leaving_, content_}) {
        if (old && old != content)
            old->peer().removeFromSuperview();
    }
    leaving_ = nullptr;
    content_ = content;
    progress_ = 1;
    if (content_->peer().superview() != &view())
        addSubview(content_);
    content_->setKeepsChevron(false);
    content_->setPhase(0);
    update();
}

void UINavigationBarPeer::showBetween(const Between& between) {
    leaving_ = between.from;
    content_ = between.to;
    progress_ = between.progress;
    isPush_ = between.isPush;
    if (content_->peer().superview() != &view())
        addSubview(content_);
    update();
}

void UINavigationBarPeer::contentChanged() {
    update();
}

void UINavigationBarPeer::update() {
    if (!content_ || standsAlone_)
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

void UINavigationBarPeer::placeBackgrounds(double height) {
    const auto shown = leaving_ ? progress_ * width_ : width_;
    const auto hidden = width_ - shown;
    UIViewPeer::place(*background_, CGRectMake(isPush_ ? hidden : 0, -top_, shown, height));
    background_->setAlpha(content_->backgroundAlpha());
    UIViewPeer::place(*leavingBackground_, CGRectMake(isPush_ ? 0 : shown, -top_, hidden, height));
    leavingBackground_->setAlpha(leaving_ ? leaving_->backgroundAlpha() : 0);
}

void UINavigationBarPeer::layoutSubviews() {
    if (!standsAlone_)
        return;
    const auto bounds = view().bounds();
    rowHeight_ = bounds.size.height;
    background_->setFrame(bounds);
    if (!content_)
        return;
    content_->setRowHeight(rowHeight_);
    content_->setFrame(bounds);
}

bool UINavigationBarPeer::pointInside(CGPoint point) const {
    return UIViewPeer::pointInside(point) && point.y < rowHeight_;
}

CGSize UINavigationBarPeer::sizeThatFits(CGSize room) const {
    return {room.width, rowHeight(traits().idiom)};
}

std::optional<double> UINavigationBarPeer::intrinsicHeight() const {
    return rowHeight(traits().idiom);
}
