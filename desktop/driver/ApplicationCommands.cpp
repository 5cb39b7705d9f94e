#include "ApplicationCommands.h"

#include "DrivenApplication.h"
#include "JsonValues.h"
#include "PSListControllerPeer.h"
#include "screen/Screen.h"
#include "specifiers/RadioGroup.h"

#include <QJsonObject>

namespace {

QJsonObject titleOf(const DrivenApplication& application) {
    const auto page = application.page();
    return {{"title", page ? jsonOfText(page->peer().title()) : QJsonValue()}};
}

/// What an outcome answers: the title of the page that is in front then.
Answer answerFor(const DrivenApplication::Outcome& outcome, const DrivenApplication& application) {
    if (!outcome)
        return std::unexpected(outcome.error());
    Screen::current().layoutIfNeeded();
    return titleOf(application);
}

Answer open(DrivenApplication& application, const CommandTable::Arguments& arguments) {
    const auto entry = arguments.empty() ? std::nullopt : std::optional(arguments[0].text);
    return answerFor(application.open(entry), application);
}

Answer back(DrivenApplication& application) {
    if (const auto* const presented = Screen::current().presentations().top())
        return std::unexpected("the navigation bar is covered: " + std::string(presented->kind()));
    return answerFor(application.goBack(), application);
}

Answer relaunch(DrivenApplication& application) {
    const auto outcome = application.relaunch();
    if (!outcome)
        return std::unexpected(outcome.error());
    return QJsonObject();
}

/// Heads of groups, and rows that only lead somewhere, have none.
bool hasValue(const DesktopSpecifier& specifier) {
    return specifier.keepsValue() || isChoice(specifier);
}

Answer set(const DrivenApplication& application, const CommandTable::Arguments& arguments) {
    const auto page = dynamicCast<PSListController>(application.page());
    if (!page)
        return std::unexpected("the page in front has no rows");
    const auto specifier = dynamicCast<DesktopSpecifier>(page->specifierForID(arguments[0].text));
    if (!specifier)
        return std::unexpected("the page has no row of that identifier");
    if (!hasValue(*specifier))
        return std::unexpected("the row has no value");
    const auto value = propertyListFromJson(arguments[1].text);
    if (!value)
        return std::unexpected(value.error());
    peerOf<PSListControllerPeer>(*page).setValue(*specifier, *value);
    return QJsonObject();
}

} // namespace

void addApplicationCommands(CommandTable& table, DrivenApplication& application) {
    table.add({.usage = "open [ENTRY]", .fewest = 0, .most = 1, .run = [&application](const auto& arguments) {
                   return open(application, arguments);
               }});
    table.add({.usage = "back", .run = [&application](const auto&) { return back(application); }});
    table.add({.usage = "relaunch", .run = [&application](const auto&) { return relaunch(application); }});
    table.add({.usage = "set ROW-ID JSON",
               .fewest = 2,
               .most = 2,
               .lastIsRest = true,
               .run = [&application](const auto& arguments) { return set(application, arguments); }});
}
