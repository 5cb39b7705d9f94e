#include "KnownPictures.h"

#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <utility>

namespace {

QImage decoded(const NSData& content) {
    auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(content.bytes.data()),
                                         static_cast<qsizetype>(content.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

KnownPictures& KnownPictures::shared() {
    static KnownPictures pictures;
    return pictures;
}

QImage KnownPictures::picture(const NSData& content) {
    const auto known = std::ranges::find(known_, content, &Known::content);
    if (known != known_.end()) {
        known_.splice(known_.begin(), known_, known);
        return known->picture;
    }
    ++decodedCount_;
    auto picture = decoded(content);
    if (!picture.isNull() && picture.sizeInBytes() <= largest)
        keep(content, picture);
    return picture;
}

void KnownPictures::keep(const NSData& content, const QImage& picture) {
    known_.push_front({.content = content, .picture = picture});
    auto bytes = qsizetype{0};
    std::erase_if(known_, [&bytes](const Known& known) {
        bytes += known.picture.sizeInBytes();
        return bytes > capacity;
    });
}

void KnownPictures::expect(const std::string& folder, const std::string& ending) {
    folders_.push_back({.folder = folder, .ending = ending});
}

void KnownPictures::expectNothing() {
    folders_.clear();
    files_.clear();
}

bool KnownPictures::prepare() {
    if (!files_.empty()) {
        const auto path = std::move(files_.back());
        files_.pop_back();
        if (const auto content = NSData::dataWithContentsOfFile(path))
            static_cast<void>(picture(*content));
        return true;
    }
    if (folders_.empty())
        return false;
    const auto expected = std::move(folders_.back());
    folders_.pop_back();
    for (const auto& name : lookInto(expected))
        lookInto(
            {.folder = stringByAppendingPathComponent(expected.folder, name), .ending = expected.ending});
    return true;
}

std::vector<std::string> KnownPictures::lookInto(const Expected& expected) {
    auto names = NSFileManager::defaultManager()
                     .contentsOfDirectoryAtPath(expected.folder)
                     .value_or(std::vector<std::string>{});
    const auto others = std::ranges::partition(
        names, [&expected](const std::string& name) { return name.ends_with(expected.ending); });
    for (auto name = names.begin(); name != others.begin(); ++name)
        files_.push_back(stringByAppendingPathComponent(expected.folder, *name));
    return {others.begin(), others.end()};
}
