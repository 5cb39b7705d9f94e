#include "EventCommands.h"

#include "Device.h"
#include "JsonValues.h"
#include "system/DarwinNotifications.h"
#include "system/LogRecorder.h"
#include "system/SystemSounds.h"
#include "system/UrlOpener.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <array>

namespace {

Answer eventsAnswer(const std::vector<std::string>& texts) {
    QJsonArray events;
    for (const auto& text : texts)
        events.append(jsonOfText(text));
    return QJsonObject{{"events", events}};
}

Answer soundsAnswer() {
    QJsonArray events;
    for (const auto sound : Device::current().sounds().take())
        events.append(static_cast<qint64>(sound));
    return QJsonObject{{"events", events}};
}

struct HandlerName {
    std::string_view name;
    UrlOpener::Handler handler;
};

constexpr std::array handlerNames{
    HandlerName{"works", UrlOpener::Handler::Works},
    HandlerName{"fails", UrlOpener::Handler::Fails},
    HandlerName{"none", UrlOpener::Handler::None},
};

Answer setUrlHandler(const CommandTable::Arguments& arguments) {
    const auto* const found = std::ranges::find(handlerNames, arguments[1].text, &HandlerName::name);
    if (found == handlerNames.end())
        return std::unexpected("a URL handler works, fails or is none");
    Device::current().urls().setHandler(arguments[0].text, found->handler);
    return QJsonObject();
}

} // namespace

void addEventCommands(CommandTable& table, LogRecorder& log) {
    table.add({.usage = "log", .run = [&log](const auto&) { return eventsAnswer(log.take()); }});
    table.add({.usage = "notifications",
               .run = [](const auto&) { return eventsAnswer(Device::current().notifications().take()); }});
    table.add({.usage = "sounds", .run = [](const auto&) { return soundsAnswer(); }});
    table.add(
        {.usage = "urls", .run = [](const auto&) { return eventsAnswer(Device::current().urls().take()); }});
    table.add({.usage = "url-handler SCHEME works|fails|none",
               .fewest = 2,
               .most = 2,
               .run = [](const auto& arguments) { return setUrlHandler(arguments); }});
}
