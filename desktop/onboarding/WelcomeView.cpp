#include "WelcomeView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "scrolling/UIScrollViewPeer.h"

#include <algorithm>

namespace {

const Class classObject = Class::define<WelcomeView, UIView>("WelcomeView");

constexpr double wideFrom = 500; ///< a view's width that is no phone's
constexpr double headerMargin = 24;
constexpr double listMargin = 32;
constexpr double wideMargin = 48; ///< of both
constexpr double widestList = 448;
constexpr double gapAboveList = 44;
constexpr double gapBelow = 32;

/// A column in the middle of a page.
struct Column {
    double left;
    double width;
};

Column columnIn(double pageWidth, double margin, double widest) {
    const auto width = std::clamp(pageWidth - 2 * margin, 0.0, widest);
    return {.left = (pageWidth - width) / 2, .width = width};
}

} // namespace

WelcomeView::WelcomeView()
    : scroll_(make<UIScrollView>()),
      header_(make<OBHeaderView>()),
      list_(make<OBBulletedList>()) {
    setBackgroundColor(DesktopColor::system(SystemColor::Background));
    for (const auto& view : {Ref<UIView>(header_), Ref<UIView>(list_)})
        view->layer().peer().keepsPicture = true; // a sheet that comes may show them above a backdrop
    addSubview(scroll_);
    scroll_->addSubview(header_);
    scroll_->addSubview(list_);
}

void WelcomeView::setHeaderContent(const OBHeaderView::Content& content) {
    header_->setContent(content);
    peer().setNeedsLayout();
}

void WelcomeView::addItem(const Ref<OBBulletedListItem>& item) {
    list_->addItem(item);
    peer().setNeedsLayout();
}

void WelcomeView::layoutSubviews() {
    UIView::layoutSubviews();
    scroll_->setFrame(bounds());
    const auto width = bounds().size.width;
    const auto isWide = width >= wideFrom;
    const auto header = columnIn(width, isWide ? wideMargin : headerMargin, width);
    header_->setFrame(CGRectMake(header.left, 0, header.width, header_->heightForWidth(header.width)));
    const auto list = columnIn(width, isWide ? wideMargin : listMargin, widestList);
    const auto listTop = CGRectGetMaxY(header_->frame()) + gapAboveList;
    list_->setFrame(CGRectMake(list.left, listTop, list.width, list_->heightForWidth(list.width)));
    peerOf<UIScrollViewPeer>(*scroll_).setContentSize({width, CGRectGetMaxY(list_->frame()) + gapBelow});
}
