#pragma once

#include <expected>
#include <string>
#include <vector>

/// Something presented that waits for files of the host to be chosen. The peer of a controller that asks for
/// files derives from it; the sheet that the controller is presented in hands it out.
class FilePicker {
public:
    virtual ~FilePicker() = default;

    /// Takes those files, as somebody who has chosen them. \returns nothing, or why they are not taken
    virtual std::expected<void, std::string> pickFiles(const std::vector<std::string>& hostPaths) = 0;

    /// Nothing is chosen.
    virtual void cancelPicking() = 0;
};
