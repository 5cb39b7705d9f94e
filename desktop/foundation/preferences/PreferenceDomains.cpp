#include "preferences/PreferenceDomains.h"

std::shared_ptr<PreferenceDomain> PreferenceDomains::domainNamed(std::string_view name) {
    const std::scoped_lock lock(mutex_);
    auto& domain = domains_.try_emplace(std::string(name)).first->second;
    if (!domain)
        domain = std::make_shared<PreferenceDomain>(root_, name);
    return domain;
}
