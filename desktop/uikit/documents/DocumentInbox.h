#pragma once

#include <expected>
#include <string>

/// Where the application finds the copies of files that were chosen for it: each in a folder of its own below
/// the device's temporary folder, under the name that it had. A copy is there whole or not at all. Failures
/// are texts for the user.
namespace DocumentInbox {

/// Brings in a file of the host. \returns the copy's path on the device
[[nodiscard]] std::expected<std::string, std::string> takeHostFile(const std::string& hostPath);

/// Copies a file of the device. \returns the copy's path
[[nodiscard]] std::expected<std::string, std::string> takeDeviceFile(const std::string& path);

} // namespace DocumentInbox
