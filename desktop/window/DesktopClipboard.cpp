#include "DesktopClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>
#include <memory>

std::string DesktopClipboard::text() const {
    return QGuiApplication::clipboard()->text().toStdString();
}

void DesktopClipboard::setText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void DesktopClipboard::setFiles(const std::vector<std::string>& urls) {
    QList<QUrl> files;
    for (const auto& url : urls)
        files.append(QUrl(QString::fromStdString(url)));
    auto content = std::make_unique<QMimeData>();
    content->setUrls(files);
    QGuiApplication::clipboard()->setMimeData(content.release());
}
