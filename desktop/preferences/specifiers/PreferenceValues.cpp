#include "specifiers/PreferenceValues.h"

#include "CoreFoundation/DarwinNotifyCenter.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSUserDefaults.h"

namespace {

Ref<NSUserDefaults> domainOf(const DesktopSpecifier& specifier) {
    const auto name = specifier.textForKey("defaults");
    return !name.empty() && !specifier.textForKey("key").empty() ? NSUserDefaults::initWithSuiteName(name)
                                                                 : nullptr;
}

} // namespace

std::optional<PropertyList> readKeptValue(const DesktopSpecifier& specifier) {
    const auto domain = domainOf(specifier);
    return domain ? domain->objectForKey(specifier.textForKey("key")) : std::nullopt;
}

void keepValue(const std::optional<PropertyList>& value, const DesktopSpecifier& specifier) {
    const auto domain = domainOf(specifier);
    if (!domain)
        return;
    const auto key = specifier.textForKey("key");
    if (value)
        domain->setObject(*value, key);
    else
        domain->removeObjectForKey(key);
    if (!domain->synchronize())
        NSLog("The value of row %@ could not be made lasting.", specifier.identifier());
    if (const auto name = specifier.textForKey("PostNotification"); !name.empty())
        DarwinNotifyCenter::postNotification(name);
}
