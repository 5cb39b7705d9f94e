#include "DesktopFileDialog.h"

#include "DeviceWindow.h"

#include <QWindow>
#include <utility>

void DesktopFileDialog::chooseFile(Chosen chosen) {
    open(QFileDialog::ExistingFile, chosen);
}

void DesktopFileDialog::chooseFolder(Chosen chosen) {
    open(QFileDialog::Directory, chosen);
}

void DesktopFileDialog::open(QFileDialog::FileMode mode, const Chosen& chosen) {
    dialog_ = std::make_unique<QFileDialog>();
    dialog_->setFileMode(mode);
    dialog_->setOption(QFileDialog::ShowDirsOnly, mode == QFileDialog::Directory);
    QObject::connect(dialog_.get(), &QFileDialog::fileSelected, &window_,
                     [this, chosen](const QString& path) {
                         chosen(path.toStdString());
                         window_.wake();
                     });
    dialog_->winId(); // makes its window
    dialog_->windowHandle()->setTransientParent(&window_);
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->show();
}
