#include "Device.h"

#include "Foundation/NSFileManager.h"
#include "PreferenceDomains.h"

#include <cstdio>
#include <cstdlib>
#include <initializer_list>

namespace {

Device* currentDevice = nullptr;

[[noreturn]] void endProgram(const char* reason) {
    std::fprintf(stderr, "corvex: %s\n", reason);
    std::abort();
}

} // namespace

Device::Device(Options options) :
    options_(std::make_shared<const Options>(std::move(options))), mainQueue_(*options_->clock),
    preferenceDomains_(
        std::make_shared<PreferenceDomains>(std::shared_ptr<const DeviceRoot>(options_, &options_->root))) {
    if (currentDevice != nullptr)
        endProgram("a second device was made while there is one");
    currentDevice = this;
    for (const auto* path : {documentsPath, temporaryPath, preferencesPath}) {
        if (const auto made = NSFileManager::defaultManager().createDirectoryAtPath(path, true); !made)
            std::fprintf(stderr, "corvex: %s\n", made.error()->description().c_str());
    }
}

Device::~Device() { currentDevice = nullptr; }

Device& Device::current() {
    if (currentDevice == nullptr)
        endProgram("the platform was used before a device was made");
    return *currentDevice;
}
