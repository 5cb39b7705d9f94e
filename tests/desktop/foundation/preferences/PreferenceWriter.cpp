/// Goes on with the steps of a preference domain from where its file stands, up to a last one, and tells of
/// each when it begins and when it is lasting. Waits for a line before each batch of steps but its first, so
/// that it does not run away from who listens. To be killed meanwhile.
#include "Device.h"
#include "Foundation/NSUserDefaults.h"
#include "preferences/PreferenceStep.h"
#include "time/RealClock.h"

#include <unistd.h>

#include <cstdint>
#include <string>

namespace {

constexpr auto suiteName = "org.example.killed";

/// In one write, and so whole or not at all.
bool tell(const char* what, std::uint64_t number) {
    const auto line = what + (' ' + std::to_string(number)) + '\n';
    return write(STDOUT_FILENO, line.data(), line.size()) == static_cast<ssize_t>(line.size());
}

bool waitForLeave() {
    char byte = 0;
    return read(STDIN_FILENO, &byte, 1) == 1;
}

bool perform(const PreferenceStep& step, NSUserDefaults& defaults) {
    if (step.removesDomainFirst)
        defaults.removePersistentDomainForName(suiteName);
    defaults.setObject(step.number, "number");
    defaults.setObject(NSData::dataWithBytes(step.blob), "blob");
    defaults.setObject(step.checksum, "checksum");
    if (step.extraValue)
        defaults.setObject(*step.extraValue, step.extraKey);
    else
        defaults.removeObjectForKey(step.extraKey);
    return defaults.synchronize();
}

} // namespace

int main(int, char** arguments) {
    auto root = DeviceRoot::open(arguments[1]);
    if (!root)
        return 1;
    const auto last = std::stoull(arguments[2]);
    const auto batch = std::stoull(arguments[3]);
    const Device device({.root = std::move(*root), .clock = std::make_unique<RealClock>()});
    const auto defaults = NSUserDefaults::initWithSuiteName(suiteName);
    const auto reached = defaults->objectForKey("number");
    auto number = reached ? static_cast<std::uint64_t>(reached->integerValue()) : 0;
    for (const auto first = number + 1; number < last;) {
        ++number;
        if (number != first && number % batch == 0 && !waitForLeave())
            return 2;
        if (!tell("begin", number) || !perform(PreferenceStep(number), *defaults) || !tell("done", number))
            return 2;
    }
    return 0;
}
