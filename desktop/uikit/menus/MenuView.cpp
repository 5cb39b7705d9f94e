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

MenuView::MenuView(const DesktopMenu& menu, Chosen chosen)
    : MenuView(menu, make<MenuRowsView>(menu, std::move(chosen))) {}

MenuView::MenuView(const DesktopMenu& menu, const Ref<MenuRowsView>& rows)
    : ChoicePanel(rows),
      panel_(make<UIView>()),
      blur_(make<UIView>()),
      rows_(rows) {
    layer().setShadowRadius(shadowRadius);
    layer().setShadowOpacity(shadowOpacity);
    layer().setShadowOffset({});
    panel_->setClipsToBounds(true);
    panel_->layer().setCornerRadius(cornerRadius);
    panel_->layer().peer().continuousCorners = true;
    blur_->layer().peer().backdrop = material;
    blur_->setBackgroundColor(DesktopColor::system(SystemColor::MenuPanel));
    addSubview(panel_);
    panel_->addSubview(blur_);
    if (!menu.title().empty())
        addTitle(menu.title());
    panel_->addSubview(scroll());
}

void MenuView::addTitle(const std::string& title) {
    title_ = make<UILabel>();
    title_->setText(title);
    title_->setFont(DesktopFont::font(titleFontSize));
    title_->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    panel_->addSubview(title_);
}

double MenuView::heightOfTitle() const {
    return title_ ? titleHeight : 0;
}

double MenuView::fullHeight() const {
    return heightOfTitle() + rows_->fullHeight();
}

void MenuView::layoutSubviews() {
    ChoicePanel::layoutSubviews();
    const auto& size = bounds().size;
    for (const auto& view : {panel_, blur_})
        view->setFrame(bounds());
    if (title_)
        title_->setFrame(CGRectMake(titleMargin, 0, size.width - 2 * titleMargin, titleHeight));
    const auto top = heightOfTitle();
    placeChoices(CGRectMake(0, top, size.width, size.height - top), rows_->fullHeight());
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, size.width, size.height), cornerRadius, cornerRadius);
    layer().peer().shadowPath = outline;
}
