#include "specifiers/DeviceCapabilities.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

constexpr std::array<std::string_view, 3> capabilities{"arm64", "multitasking", "wifi"};

bool has(const PropertyList& name) {
    const auto* const text = name.getIf<std::string>();
    return text != nullptr && deviceHasCapability(*text);
}

} // namespace

bool deviceHasCapability(std::string_view name) {
    return std::ranges::find(capabilities, name) != capabilities.end();
}

bool deviceMeets(const PropertyList& requiredCapabilities) {
    if (const auto* const names = requiredCapabilities.getIf<PropertyList::Array>())
        return std::ranges::all_of(*names, has);
    if (const auto* const wanted = requiredCapabilities.getIf<PropertyList::Dictionary>())
        return std::ranges::all_of(*wanted, [](const auto& entry) {
            return deviceHasCapability(entry.first) == entry.second.boolValue();
        });
    return true;
}
