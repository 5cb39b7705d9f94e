#pragma once

#include "files/DeviceRoot.h"

#include <cstddef>
#include <expected>
#include <filesystem>
#include <string>

/// Lays what the build makes for the device into a device root: the pane's bundle and its entry, and the
/// resources of Settings. Made by the program and by tests, for one installation.
class DeviceInstaller {
public:
    /// \param tree the host's folder of files as the device has them
    explicit DeviceInstaller(std::filesystem::path tree) : tree_(std::move(tree)) {}

    /// The tree that was built, or installed, with the program that runs.
    [[nodiscard]] static std::filesystem::path treeOfThisProgram();

    /// Whether nothing at all is in the root.
    [[nodiscard]] static bool isEmpty(const DeviceRoot& root);

    /// Writes the files that the root lacks or has otherwise, each in one step, and nothing else.
    /// \returns how many were written, or the reason why that went wrong; what was written before stays
    [[nodiscard]] std::expected<std::size_t, std::string> install(const DeviceRoot& root) const;

private:
    /// \returns whether the file had to be written
    [[nodiscard]] std::expected<bool, std::string> installFile(const DeviceRoot& root,
                                                               const std::filesystem::path& file) const;

    std::filesystem::path tree_;
};
