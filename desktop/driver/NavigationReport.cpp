#include "NavigationReport.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "JsonValues.h"
#include "ObjectiveC/Class.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "menus/DesktopMenu.h"
#include "screen/Screen.h"

namespace {

QJsonValue jsonOfSymbol(const Ref<UIImage>& image) {
    const auto symbol = dynamicCast<DesktopImage>(image);
    return symbol && !symbol->symbolName().empty() ? jsonOfText(symbol->symbolName()) : QJsonValue();
}

/// Null for an item that opens no menu.
QJsonValue jsonOfMenu(const Ref<UIMenu>& opened) {
    const auto menu = dynamicCast<DesktopMenu>(opened);
    if (!menu)
        return {};
    QJsonArray actions;
    for (const auto& action : menu->actions())
        actions.append(QJsonObject{{"title", jsonOfText(action->title())},
                                   {"symbol", jsonOfSymbol(action->image())},
                                   {"destructive", action->isDestructive()}});
    return actions;
}

/// Null for the bar's own tint.
QJsonValue jsonOfTint(const Ref<UIColor>& color) {
    if (!color)
        return {};
    return jsonOf(DesktopColor::resolve(color, Screen::current().traits()));
}

} // namespace

QJsonArray barItemReports(const std::vector<Ref<UIBarButtonItem>>& items) {
    QJsonArray reports;
    for (const auto& shown : items) {
        if (const auto item = dynamicCast<DesktopBarButtonItem>(shown))
            reports.append(QJsonObject{{"title", jsonOfText(item->content().title)},
                                       {"symbol", jsonOfSymbol(item->content().image)},
                                       {"tint", jsonOfTint(item->tintColor())},
                                       {"menu", jsonOfMenu(item->content().menu)}});
    }
    return reports;
}

QJsonObject navigationReport(const UIViewController& page) {
    const auto& item = page.peer().navigationItem();
    const auto& titleView = item.titleView();
    return {
        {"title", jsonOfText(item.title())},
        {"titleView", titleView ? jsonOfText(titleView->isa().name()) : QJsonValue()},
        {"left", barItemReports(item.leftItems())},
        {"right", barItemReports(item.rightItems())},
    };
}
