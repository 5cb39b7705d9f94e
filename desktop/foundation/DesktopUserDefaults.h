#pragma once

#include "Foundation/NSUserDefaults.h"
#include "preferences/PreferenceDomains.h"

#include <memory>
#include <mutex>
#include <set>
#include <string>

/// A suite object: one domain of the device's. Changes of any kind, the removal of a whole domain too, reach
/// the file with `synchronize`, which also makes the removals of other domains lasting that were made through
/// it.
class DesktopUserDefaults final : public NSUserDefaults {
public:
    DesktopUserDefaults(std::shared_ptr<PreferenceDomains> domains, std::string_view suiteName);

    [[nodiscard]] std::optional<PropertyList> objectForKey(std::string_view key) const override;
    [[nodiscard]] std::optional<std::string> stringForKey(std::string_view key) const override;
    void setObject(const PropertyList& value, std::string_view key) override;
    void removeObjectForKey(std::string_view key) override;
    [[nodiscard]] PropertyList::Dictionary dictionaryRepresentation() const override;
    void removePersistentDomainForName(std::string_view domainName) override;
    bool synchronize() override;

private:
    const std::shared_ptr<PreferenceDomains> domains_;
    const std::shared_ptr<PreferenceDomain> domain_;
    const std::string suiteName_;
    std::mutex mutex_;
    std::set<std::shared_ptr<PreferenceDomain>> removedDomains_; ///< guarded by `mutex_`
};
