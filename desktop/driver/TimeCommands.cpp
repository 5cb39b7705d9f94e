#include "TimeCommands.h"

#include "Device.h"
#include "JsonValues.h"
#include "NumberText.h"
#include "time/MainQueueScheduler.h"
#include "time/VirtualClock.h"

#include <QJsonObject>
#include <chrono>

namespace {

constexpr double longestAdvance = 24 * 60 * 60; // seconds
constexpr std::chrono::minutes settleLimit(5);

QJsonObject now() {
    return {{"now", jsonOf(PropertyList(Device::current().clock().date()))}};
}

Answer advance(VirtualClock& clock, const CommandTable::Arguments& arguments) {
    const auto seconds = numberFromText(arguments[0].text);
    if (!seconds || *seconds < 0 || *seconds > longestAdvance)
        return std::unexpected("SECONDS is a number from 0 to 86400");
    const std::chrono::duration<double> duration(*seconds);
    Device::current().mainQueue().advance(clock, std::chrono::round<std::chrono::nanoseconds>(duration));
    return now();
}

Answer settle(VirtualClock& clock) {
    if (!Device::current().mainQueue().settle(clock, settleLimit))
        return std::unexpected("something still waited or moved after 5 minutes");
    return now();
}

} // namespace

void addTimeCommands(CommandTable& table, VirtualClock& clock) {
    table.add({.usage = "advance SECONDS", .fewest = 1, .most = 1, .run = [&clock](const auto& arguments) {
                   return advance(clock, arguments);
               }});
    table.add({.usage = "settle", .run = [&clock](const auto&) { return settle(clock); }});
}
