#include "menus/MenuView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <QPainterPath>

namespace {

const Class classObject = Class::define<MenuView, UIControl>("MenuView");

constexpr auto titleHeight = 32.0;
constexpr auto titleMargin = 16.0;
constexpr auto titleFontSize = 13.0;
constexpr auto shadowRadius = 32.0;
constexpr auto shadowOpacity = 0.2;
constexpr Backdrop material{.blurRadius = 20, .saturation = 1.8};

} // namespace

MenuView::MenuView(const Ref<DesktopMenu>& menu, Chosen chosen)
    : chosen_(std::move(chosen)),
      panel_(make<UIView>()),
      blur_(make<UIView>()),
      tint_(make<UIView>()) {
    peer().setAccessibility({}); // its rows are elements, it is none itself
    layer().setShadowRadius(shadowRadius);
    layer().setShadowOpacity(shadowOpacity);
    layer().setShadowOffset({});
    panel_->setClipsToBounds(true);
    panel_->setUserInteractionEnabled(false);
    panel_->layer().setCornerRadius(cornerRadius);
    panel_->layer().peer().continuousCorners = true;
    blur_->layer().peer().backdrop = material;
    tint_->setBackgroundColor(DesktopColor::system(SystemColor::MenuPanel));
    addSubview(panel_);
    panel_->addSubview(blur_);
    panel_->addSubview(tint_);
    if (!menu->title().empty())
        addTitle(menu->title());
    for (const auto& action : menu->actions()) {
        rows_.push_back(make<MenuRowView>(action));
        rows_.back()->setHasSeparator(title_ || rows_.size() > 1);
        panel_->addSubview(rows_.back());
    }
}

void MenuView::addTitle(const std::string& title) {
    title_ = make<UILabel>();
    title_->setText(title);
    title_->setFont(DesktopFont::font(titleFontSize));
    title_->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    panel_->addSubview(title_);
}

double MenuView::fullHeight() const {
    return (title_ ? titleHeight : 0) + MenuRowView::height * static_cast<double>(rows_.size());
}

void MenuView::layoutSubviews() {
    FollowingControl::layoutSubviews();
    for (const auto& view : {panel_, blur_, tint_})
        view->setFrame(bounds());
    auto top = 0.0;
    if (title_) {
        title_->setFrame(CGRectMake(titleMargin, 0, bounds().size.width - 2 * titleMargin, titleHeight));
        top = titleHeight;
    }
    for (const auto& row : rows_) {
        row->setFrame(CGRectMake(0, top, bounds().size.width, MenuRowView::height));
        top += MenuRowView::height;
    }
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, bounds().size.width, bounds().size.height), cornerRadius,
                           cornerRadius);
    layer().peer().shadowPath = outline;
}

MenuRowView* MenuView::rowAt(CGPoint place) const {
    for (const auto& row : rows_) {
        if (CGRectContainsPoint(row->frame(), place) && !row->action()->isDisabled())
            return row.get();
    }
    return nullptr;
}

void MenuView::fingerMoved(CGPoint place) {
    const auto* const touched = rowAt(place);
    for (const auto& row : rows_)
        row->setHighlighted(row.get() == touched);
}

void MenuView::fingerLifted(CGPoint place) {
    if (const auto* const touched = rowAt(place))
        chosen_(touched->action());
    else
        fingerGone();
}

void MenuView::fingerGone() {
    for (const auto& row : rows_)
        row->setHighlighted(false);
}
