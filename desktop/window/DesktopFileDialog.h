#pragma once

#include "screen/HostFileDialog.h"

#include <QFileDialog>
#include <memory>

class DeviceWindow;

/// The desktop's dialog for files, in front of the window. Made by the window; needs a QApplication once it
/// is opened.
class DesktopFileDialog final : public HostFileDialog {
public:
    /// \param window outlives the dialog
    explicit DesktopFileDialog(DeviceWindow& window) : window_(window) {}

    // HostFileDialog:
    void chooseFile(Chosen chosen) override;
    void chooseFolder(Chosen chosen) override;

private:
    void open(QFileDialog::FileMode mode, const Chosen& chosen);

    DeviceWindow& window_;
    std::unique_ptr<QFileDialog> dialog_; ///< the one opened last
};
