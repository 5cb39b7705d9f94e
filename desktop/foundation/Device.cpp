#include "Device.h"

#include "DesktopBundle.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "preferences/PreferenceDomains.h"
#include "preferences/PreferenceFolder.h"
#include "system/ApplicationSuspension.h"
#include "system/ApplicationTermination.h"
#include "system/DarwinNotifications.h"
#include "system/SystemSounds.h"
#include "system/UrlOpener.h"
#include "time/MainQueueScheduler.h"

#include <unicode/timezone.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <memory>

namespace {

Device* currentDevice = nullptr;

[[noreturn]] void endProgram(const char* reason) {
    std::fprintf(stderr, "corvex: %s\n", reason);
    std::abort();
}

/// The name, or UTC when there is no zone of that name.
std::string knownTimeZone(const std::string& name) {
    const std::unique_ptr<const icu::TimeZone> zone(icu::TimeZone::createTimeZone(name.c_str()));
    if (*zone != icu::TimeZone::getUnknown())
        return name;
    NSLog("There is no time zone named \"%@\"; UTC is used.", name);
    return "UTC";
}

} // namespace

Device::Device(Options options)
    : root_(std::make_shared<const DeviceRoot>(std::move(options.root))),
      clock_(std::move(options.clock)),
      locale_(std::move(options.locale)),
      timeZone_(knownTimeZone(options.timeZone)),
      mainBundle_(make<DesktopBundle>(options.mainBundlePath)),
      preferenceDomains_(std::make_shared<PreferenceDomains>(root_)),
      mainQueue_(std::make_unique<MainQueueScheduler>(*clock_)),
      notifications_(std::make_unique<DarwinNotifications>()),
      sounds_(std::make_unique<SystemSounds>()),
      urls_(std::make_unique<UrlOpener>()),
      suspensions_(std::make_unique<ApplicationSuspension>()),
      terminations_(std::make_unique<ApplicationTermination>()) {
    if (currentDevice != nullptr)
        endProgram("a second device was made while there is one");
    currentDevice = this;
    for (const auto* path : {documentsPath, temporaryPath, PreferenceFolder::path}) {
        if (const auto made = NSFileManager::defaultManager().createDirectoryAtPath(path, true); !made)
            NSLog("The device lacks one of its folders: %@", made.error());
    }
}

Device::~Device() {
    currentDevice = nullptr;
}

NSDate Device::momentOfCreation() {
    constexpr auto tick = 1e-6;
    lastCreation_ = std::max(clock_->date().timeIntervalSinceReferenceDate, lastCreation_ + tick);
    return {lastCreation_};
}

Device& Device::current() {
    if (currentDevice == nullptr)
        endProgram("the platform was used before a device was made");
    return *currentDevice;
}
