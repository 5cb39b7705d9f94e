#include "DesktopUserDefaults.h"

#include "Device.h"
#include "Foundation/NSLog.h"
#include "propertylists/PropertyListCoding.h"

#include <utility>

Ref<NSUserDefaults> NSUserDefaults::initWithSuiteName(std::string_view suiteName) {
    return make<DesktopUserDefaults>(Device::current().preferenceDomains(), suiteName);
}

DesktopUserDefaults::DesktopUserDefaults(std::shared_ptr<PreferenceDomains> domains,
                                         std::string_view suiteName)
    : domains_(std::move(domains)),
      domain_(domains_->domainNamed(suiteName)),
      suiteName_(suiteName) {}

std::optional<PropertyList> DesktopUserDefaults::objectForKey(std::string_view key) const {
    return domain_->value(key);
}

std::optional<std::string> DesktopUserDefaults::stringForKey(std::string_view key) const {
    const auto value = domain_->value(key);
    if (!value || (!value->isNumber() && value->getIf<std::string>() == nullptr))
        return std::nullopt;
    return value->description();
}

void DesktopUserDefaults::setObject(const PropertyList& value, std::string_view key) {
    if (canBeKept(key, value))
        domain_->set(key, value);
    else
        NSLog("A value was not set in the preferences of %@, since it cannot be kept there", suiteName_);
}

void DesktopUserDefaults::removeObjectForKey(std::string_view key) {
    domain_->remove(key);
}

PropertyList::Dictionary DesktopUserDefaults::dictionaryRepresentation() const {
    return domain_->values();
}

void DesktopUserDefaults::removePersistentDomainForName(std::string_view domainName) {
    auto domain = domains_->domainNamed(domainName);
    domain->removeAll();
    const std::scoped_lock lock(mutex_);
    removedDomains_.insert(std::move(domain));
}

bool DesktopUserDefaults::synchronize() {
    const std::scoped_lock lock(mutex_);
    std::erase_if(removedDomains_, [](const auto& domain) { return domain->synchronize(); });
    return domain_->synchronize() && removedDomains_.empty();
}
