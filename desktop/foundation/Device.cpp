#include "Device.h"

#include "DesktopBundle.h"
#include "Foundation/NSFileManager.h"
<<<<<<< HEAD
#include "Foundation/NSLog.h"

#include <unicode/timezone.h>
=======
#include "PreferenceDomains.h"
>>>>>>> defaults

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

bool isKnownTimeZone(const std::string& name) {
    const std::unique_ptr<const icu::TimeZone> zone(icu::TimeZone::createTimeZone(name.c_str()));
    return *zone != icu::TimeZone::getUnknown();
}

} // namespace

<<<<<<< HEAD
Device::Device(Options options)
    : options_(std::move(options)),
      mainBundle_(make<DesktopBundle>(options_.mainBundlePath)),
      mainQueue_(*options_.clock) {
=======
Device::Device(Options options) :
    options_(std::make_shared<const Options>(std::move(options))), mainQueue_(*options_->clock),
    preferenceDomains_(
        std::make_shared<PreferenceDomains>(std::shared_ptr<const DeviceRoot>(options_, &options_->root))) {
>>>>>>> defaults
    if (currentDevice != nullptr)
        endProgram("a second device was made while there is one");
    currentDevice = this;
    if (!isKnownTimeZone(options_.timeZone)) {
        NSLog("There is no time zone named \"%@\"; UTC is used.", options_.timeZone);
        options_.timeZone = "UTC";
    }
    for (const auto* path : {documentsPath, temporaryPath, preferencesPath}) {
        if (const auto made = NSFileManager::defaultManager().createDirectoryAtPath(path, true); !made)
            std::fprintf(stderr, "corvex: %s\n", made.error()->description().c_str());
    }
}

Device::~Device() {
    currentDevice = nullptr;
}

Device& Device::current() {
    if (currentDevice == nullptr)
        endProgram("the platform was used before a device was made");
    return *currentDevice;
}
