#include "RowImage.h"

#include "CoreFoundation/DarwinNotifyCenter.h"
#include "DesktopImage.h"
#include "Foundation/NSData.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "HeifPicture.h"
#include "SystemTexts.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace {

// Below the root of the jailbreak, as everything that is installed with its layout keeps its files.
constexpr auto preferencesFolder = "/var/jb/var/mobile/Library/Preferences/";
constexpr auto suffix = "-IMG";
constexpr qint64 greatestSize = 64LL * 1024 * 1024; ///< bytes of a file

/// By the names that the readers give them.
constexpr std::array<std::string_view, 2> formats{"png", "jpeg"};

bool isNameOfOneFile(const std::string& name) {
    return !name.empty() && !name.contains('/') && name != "." && name != "..";
}

/// A picture of a known kind in those bytes; nothing for anything else.
std::optional<QImage> decoded(QByteArray bytes) {
    if (isHeif(bytes))
        return heifPicture(bytes);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const auto format = reader.format().toStdString();
    if (std::ranges::find(formats, format) == formats.end())
        return std::nullopt;
    auto picture = reader.read();
    return picture.isNull() ? std::nullopt : std::optional(std::move(picture));
}

std::expected<QByteArray, std::string> contentOf(const std::string& hostPath) {
    const auto name = QString::fromStdString(hostPath);
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return std::unexpected(systemText("The file could not be opened."));
    if (file.size() > greatestSize)
        return std::unexpected(systemText("The file is too large."));
    return file.readAll();
}

} // namespace

std::string RowImage::path() const {
    const auto domain = row_.textForKey("defaults");
    const auto key = row_.textForKey("key");
    if (!isNameOfOneFile(domain) || !isNameOfOneFile(key))
        return {};
    return preferencesFolder + domain + "/" + key + suffix;
}

bool RowImage::exists() const {
    return !path().empty() && NSFileManager::defaultManager().fileExistsAtPath(path());
}

Ref<UIImage> RowImage::image() const {
    const auto data = exists() ? NSData::dataWithContentsOfFile(path()) : std::nullopt;
    if (!data)
        return nullptr;
    const auto bytes = data->view();
    auto picture = decoded(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return picture ? make<DesktopImage>(std::move(*picture), 1) : nullptr;
}

std::expected<void, std::string> RowImage::keep(const std::string& hostPath) const {
    if (path().empty())
        return std::unexpected(systemText("The row names no place for an image."));
    const auto content = contentOf(hostPath);
    if (!content)
        return std::unexpected(content.error());
    if (!decoded(*content))
        return std::unexpected(
            systemText("The file is no image that can be used. Choose a PNG, JPEG or HEIC file."));
    auto& files = NSFileManager::defaultManager();
    const auto folder = stringByDeletingLastPathComponent(path());
    const std::string_view bytes(content->data(), static_cast<std::size_t>(content->size()));
    if (!files.createDirectoryAtPath(folder, true) ||
        !files.createFileAtPath(path(), NSData::dataWithBytes(bytes)))
        return std::unexpected(systemText("The image could not be saved."));
    post();
    return {};
}

void RowImage::remove() const {
    if (exists() && NSFileManager::defaultManager().removeItemAtPath(path()))
        post();
}

void RowImage::post() const {
    if (const auto name = row_.textForKey("PostNotification"); !name.empty())
        DarwinNotifyCenter::postNotification(name);
}
