#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "layout/DesktopLayoutAnchor.h"
#include "layout/DesktopLayoutGuide.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

namespace {

template <class Kind>
Ref<Kind> anchorOf(const UIView& view, LayoutAttribute attribute) {
    return make<DesktopLayoutAnchor<Kind>>(LayoutAnchor(view.peer().view(), attribute));
}

} // namespace

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
    peer_->setFrameGiven(translates);
}

Ref<NSLayoutXAxisAnchor> UIView::leadingAnchor() const {
    return anchorOf<NSLayoutXAxisAnchor>(*this, LayoutAttribute::Leading);
}

Ref<NSLayoutXAxisAnchor> UIView::trailingAnchor() const {
    return anchorOf<NSLayoutXAxisAnchor>(*this, LayoutAttribute::Trailing);
}

Ref<NSLayoutXAxisAnchor> UIView::centerXAnchor() const {
    return anchorOf<NSLayoutXAxisAnchor>(*this, LayoutAttribute::CenterX);
}

Ref<NSLayoutYAxisAnchor> UIView::topAnchor() const {
    return anchorOf<NSLayoutYAxisAnchor>(*this, LayoutAttribute::Top);
}

Ref<NSLayoutYAxisAnchor> UIView::bottomAnchor() const {
    return anchorOf<NSLayoutYAxisAnchor>(*this, LayoutAttribute::Bottom);
}

Ref<NSLayoutYAxisAnchor> UIView::centerYAnchor() const {
    return anchorOf<NSLayoutYAxisAnchor>(*this, LayoutAttribute::CenterY);
}

Ref<NSLayoutDimension> UIView::widthAnchor() const {
    return anchorOf<NSLayoutDimension>(*this, LayoutAttribute::Width);
}

Ref<NSLayoutDimension> UIView::heightAnchor() const {
    return anchorOf<NSLayoutDimension>(*this, LayoutAttribute::Height);
}

Ref<UILayoutGuide> UIView::safeAreaLayoutGuide() const {
    return make<DesktopLayoutGuide>(peer_->view(), LayoutGuide::SafeArea);
}

void UIView::setLayoutMargins(const UIEdgeInsets& margins) {
    peer_->layoutRules().margins = margins;
    peer_->setNeedsConstraintLayout();
}
