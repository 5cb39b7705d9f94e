#pragma once

#include "preferences/PreferenceDomain.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

/// The preference domains of this process, one for each name that was asked for. Made by the device and
/// shared with its suite objects, which may outlive it. Any thread.
class PreferenceDomains {
public:
    explicit PreferenceDomains(std::shared_ptr<const DeviceRoot> root) : root_(std::move(root)) {}

    [[nodiscard]] std::shared_ptr<PreferenceDomain> domainNamed(std::string_view name);

private:
    const std::shared_ptr<const DeviceRoot> root_;
    std::mutex mutex_;
    std::map<std::string, std::shared_ptr<PreferenceDomain>, std::less<>> domains_;
};
