#include "DesktopClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

std::string DesktopClipboard::text() const {
    return QGuiApplication::clipboard()->text().toStdString();
}

void DesktopClipboard::setText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}
