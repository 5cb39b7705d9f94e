#pragma once

#include <functional>
#include <string>

/// The desktop's own dialog for files and folders of the host. Owned by the screen; a window gives it one. It
/// is open beside the screen, which goes on meanwhile.
class HostFileDialog {
public:
    /// What a button says that opens one for files.
    static constexpr auto buttonTitle = "Browse This Computer…";

    /// Told of a path on the host. Not called when nothing is chosen.
    using Chosen = std::function<void(const std::string& hostPath)>;

    HostFileDialog() = default;
    virtual ~HostFileDialog() = default;
    HostFileDialog(const HostFileDialog&) = delete;
    HostFileDialog& operator=(const HostFileDialog&) = delete;

    /// Has the user choose a file that there is. One that is still open is closed, choosing nothing.
    virtual void chooseFile(Chosen chosen) = 0;
    /// The same for a folder.
    virtual void chooseFolder(Chosen chosen) = 0;
};
