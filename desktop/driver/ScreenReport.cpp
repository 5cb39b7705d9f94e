#include "ScreenReport.h"

#include "DrivenApplication.h"
#include "JsonValues.h"
#include "NavigationReport.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "Screen.h"
#include "UITableViewPeer.h"

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
        auto& peer = PSListControllerPeer::of(*page);
        for (const auto& row : peer.rows())
            reports.append(rowReport(row, peer.table().view()));
    }
    return reports;
}

QJsonObject actionReport(const Presented::Action& action) {
    return {
        {"title", jsonOfText(action.title)},
        {"symbol", action.symbol.empty() ? QJsonValue() : jsonOfText(action.symbol)},
        {"style", action.destructive ? "destructive" : "default"},
        {"enabled", !action.disabled},
        {"screenFrame", jsonOf(action.frame)},
    };
}

QJsonObject presentedReport(const Presented& presented) {
    QJsonArray actions;
    for (const auto& action : presented.actions())
        actions.append(actionReport(action));
    return {
        {"kind", jsonOfText(presented.kind())},
        {"class", jsonOfText(presented.shownView().isa().name())},
        {"title", jsonOfText(presented.title())},
        {"actions", actions},
    };
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
