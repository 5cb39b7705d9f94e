#include "documents/DocumentListing.h"

#include "Device.h"
#include "Foundation/NSString.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <utility>

std::vector<DocumentEntry> documentsIn(const std::string& folder) {
    const auto& files = NSFileManager::defaultManager();
    std::vector<DocumentEntry> entries;
    for (auto& name : files.contentsOfDirectoryAtPath(folder).value_or(std::vector<std::string>())) {
        const auto attributes = files.attributesOfItemAtPath(stringByAppendingPathComponent(folder, name));
        const auto isShown =
            attributes && !name.starts_with('.') && isValidUTF8(name) &&
            (attributes->fileType == NSFileType::Regular || attributes->fileType == NSFileType::Directory);
        if (isShown)
            entries.push_back({.name = std::move(name), .attributes = *attributes});
    }
    QCollator order(QLocale(QString::fromStdString(Device::current().locale())));
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(entries, [&order](const DocumentEntry& left, const DocumentEntry& right) {
        const auto compared =
            order.compare(QString::fromStdString(left.name), QString::fromStdString(right.name));
        return compared != 0 ? compared < 0 : left.name < right.name;
    });
    return entries;
}
