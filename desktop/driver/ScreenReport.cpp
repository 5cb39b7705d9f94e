#include "ScreenReport.h"

#include "DesktopColor.h"
#include "DrivenApplication.h"
#include "JsonValues.h"
#include "NavigationReport.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "controllers/DesktopNavigationItem.h"
#include "screen/Screen.h"
#include "tables/UITableViewPeer.h"

#include <QJsonArray>

namespace {

QJsonObject rowReport(const ListRow& row, const UIView& table) {
    return {
        {"id", jsonOfText(row.id)},
        {"label", jsonOfText(row.label)},
        {"cell", jsonOfText(row.cell)},
        {"cellClass", row.cellClass.empty() ? QJsonValue() : jsonOfText(row.cellClass)},
        {"key", row.key.empty() ? QJsonValue() : jsonOfText(row.key)},
        {"value", jsonOf(row.value)},
        {"enabled", row.enabled},
        {"height", row.height},
        {"screenFrame", jsonOf(table.peer().convertToScreen(row.frame))},
    };
}

QJsonArray rowReports(const Ref<UIViewController>& controller) {
    QJsonArray reports;
    if (const auto page = dynamicCast<PSListController>(controller)) {
        auto& peer = peerOf<PSListControllerPeer>(*page);
        for (const auto& row : peer.rows())
            reports.append(rowReport(row, peer.table().view()));
    }
    return reports;
}

std::string_view styleName(const Presented::Action& action) {
    if (action.cancels)
        return "cancel";
    return action.destructive ? "destructive" : "default";
}

QJsonValue jsonOrNull(const std::string& text) {
    return text.empty() ? QJsonValue() : jsonOfText(text);
}

QJsonObject actionReport(const Presented::Action& action) {
    return {
        {"title", jsonOfText(action.title)},      {"symbol", jsonOrNull(action.symbol)},
        {"style", jsonOfText(styleName(action))}, {"enabled", !action.disabled},
        {"screenFrame", jsonOf(action.frame)},
    };
}

QJsonArray itemReports(const std::vector<Presented::Item>& items, const UIView& shown) {
    QJsonArray reports;
    for (const auto& item : items)
        reports.append(QJsonObject{
            {"title", jsonOfText(item.title)},
            {"description", jsonOrNull(item.description)},
            {"symbol", jsonOrNull(item.symbol)},
            {"tint", item.tint ? QJsonValue(jsonOf(DesktopColor::resolve(item.tint, shown.peer().traits())))
                               : QJsonValue()},
            {"tappable", item.tappable},
        });
    return reports;
}

QJsonArray fieldReports(const std::vector<Presented::Field>& fields) {
    QJsonArray reports;
    for (const auto& field : fields)
        reports.append(QJsonObject{{"placeholder", jsonOrNull(field.placeholder)},
                                   {"text", jsonOfText(field.text)},
                                   {"firstResponder", field.isFirstResponder}});
    return reports;
}

QJsonArray urlReports(const std::vector<std::string>& urls) {
    QJsonArray reports;
    for (const auto& url : urls)
        reports.append(jsonOfText(url));
    return reports;
}

void addDetails(const Presented::Details& details, const UIView& shown, QJsonObject& report) {
    const auto bar = dynamicCast<DesktopNavigationItem>(details.barItem);
    report["class"] = jsonOfText(details.controllerClass);
    report["detail"] = jsonOrNull(details.detail);
    report["symbol"] = jsonOrNull(details.symbol);
    report["style"] = jsonOfText(details.style);
    report["swipeDismissable"] = details.swipeDismissable;
    report["items"] = itemReports(details.items, shown);
    report["left"] = bar ? barItemReports(bar->leftItems()) : QJsonArray();
    report["right"] = bar ? barItemReports(bar->rightItems()) : QJsonArray();
    report["fields"] = fieldReports(details.fields);
    report["urls"] = urlReports(details.urls);
    report["popover"] = details.popoverSource
                            ? QJsonValue(QJsonObject{{"sourceRect", jsonOf(*details.popoverSource)}})
                            : QJsonValue();
}

QJsonObject presentedReport(const Presented& presented) {
    QJsonArray actions;
    for (const auto& action : presented.actions())
        actions.append(actionReport(action));
    QJsonObject report{
        {"kind", jsonOfText(presented.kind())},
        {"class", jsonOfText(presented.shownView().isa().name())},
        {"title", jsonOfText(presented.title())},
        {"actions", actions},
    };
    if (const auto details = presented.details())
        addDetails(*details, presented.shownView(), report);
    return report;
}

QJsonArray presentedReports() {
    QJsonArray reports;
    for (const auto* const presented : Screen::current().presentations().all())
        reports.append(presentedReport(*presented));
    return reports;
}

} // namespace

QJsonObject screenReport(const DrivenApplication& application) {
    const auto page = application.page();
    return {
        {"app", jsonOfText(application.name())},
        {"page", page ? jsonOfText(page->isa().name()) : QJsonValue()},
        {"title", page ? jsonOfText(page->peer().title()) : QJsonValue()},
        {"navigation", page ? QJsonValue(navigationReport(*page)) : QJsonValue()},
        {"rows", rowReports(page)},
        {"presented", presentedReports()},
    };
}
