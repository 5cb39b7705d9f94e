#include "Foundation/NSFileManager.h"

#include "ErrorObject.h"
#include "Message.h"

extern "C" {
extern const id NSFileTypeRegular;
extern const id NSFileTypeDirectory;
extern const id NSFileTypeSymbolicLink;
}

namespace {

constexpr std::uint64_t userDomain = 1;

constexpr id noObject = nullptr;

id manager() {
    return sendToClass<"+[NSFileManager defaultManager]", id>();
}

std::vector<std::string> textsOf(id array) {
    std::vector<std::string> texts;
    texts.reserve(countOf(array));
    for (std::uint64_t i = 0; i < countOf(array); ++i)
        texts.push_back(textOf(objectAt(array, i)));
    return texts;
}

NSDate dateOf(id date) {
    return {send<"-[NSDate timeIntervalSinceReferenceDate]", double>(date)};
}

NSFileType fileTypeOf(const std::string& type) {
    if (type == textOf(NSFileTypeRegular))
        return NSFileType::Regular;
    if (type == textOf(NSFileTypeDirectory))
        return NSFileType::Directory;
    return type == textOf(NSFileTypeSymbolicLink) ? NSFileType::SymbolicLink : NSFileType::Other;
}

NSFileAttributes attributesFrom(id dictionary) {
    return {.fileType = fileTypeOf(send<"-[NSDictionary fileType]", std::string>(dictionary)),
            .fileSize = send<"-[NSDictionary fileSize]", std::uint64_t>(dictionary),
            .fileCreationDate = dateOf(send<"-[NSDictionary fileCreationDate]", id>(dictionary))};
}

} // namespace

NSFileManager& NSFileManager::defaultManager() {
    static NSFileManager shared;
    return shared;
}

bool NSFileManager::fileExistsAtPath(std::string_view path) const {
    const AutoreleasePool pool;
    return send<"-[NSFileManager fileExistsAtPath:]", bool>(manager(), path);
}

Result<void> NSFileManager::createDirectoryAtPath(std::string_view path, bool withIntermediateDirectories) {
    const AutoreleasePool pool;
    ErrorOut error;
    return error.result(
        send<"-[NSFileManager createDirectoryAtPath:withIntermediateDirectories:attributes:error:]", bool>(
            manager(), path, withIntermediateDirectories, noObject, error.address()));
}

bool NSFileManager::createFileAtPath(std::string_view path, const NSData& contents) {
    const AutoreleasePool pool;
    return send<"-[NSFileManager createFileAtPath:contents:attributes:]", bool>(
        manager(), path, PropertyList(contents), noObject);
}

Result<void> NSFileManager::removeItemAtPath(std::string_view path) {
    const AutoreleasePool pool;
    ErrorOut error;
    return error.result(
        send<"-[NSFileManager removeItemAtPath:error:]", bool>(manager(), path, error.address()));
}

Result<void> NSFileManager::copyItemAtPath(std::string_view path, std::string_view toPath) {
    const AutoreleasePool pool;
    ErrorOut error;
    return error.result(send<"-[NSFileManager copyItemAtPath:toPath:error:]", bool>(manager(), path, toPath,
                                                                                    error.address()));
}

Result<std::vector<std::string>> NSFileManager::contentsOfDirectoryAtPath(std::string_view path) const {
    const AutoreleasePool pool;
    ErrorOut error;
    const id names =
        send<"-[NSFileManager contentsOfDirectoryAtPath:error:]", id>(manager(), path, error.address());
    if (names == nullptr)
        return error.failure();
    return textsOf(names);
}

std::vector<std::string> NSFileManager::enumeratorAtPath(std::string_view path) const {
    const AutoreleasePool pool;
    const id enumerator = send<"-[NSFileManager enumeratorAtPath:]", id>(manager(), path);
    return textsOf(send<"-[NSEnumerator allObjects]", id>(enumerator));
}

Result<NSFileAttributes> NSFileManager::attributesOfItemAtPath(std::string_view path) const {
    const AutoreleasePool pool;
    ErrorOut error;
    const id attributes =
        send<"-[NSFileManager attributesOfItemAtPath:error:]", id>(manager(), path, error.address());
    if (attributes == nullptr)
        return error.failure();
    return attributesFrom(attributes);
}

std::vector<Ref<NSURL>> NSFileManager::URLsForDirectory(NSSearchPathDirectory directory) const {
    const AutoreleasePool pool;
    return send<"-[NSFileManager URLsForDirectory:inDomains:]", std::vector<Ref<NSURL>>>(manager(), directory,
                                                                                         userDomain);
}

std::vector<std::string> NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory) {
    std::vector<std::string> paths;
    for (const auto& url : NSFileManager::defaultManager().URLsForDirectory(directory))
        paths.push_back(url->path());
    return paths;
}

std::string NSTemporaryDirectory() {
    const AutoreleasePool pool;
    return send<"-[NSURL path]", std::string>(send<"-[NSFileManager temporaryDirectory]", id>(manager())) +
           "/";
}
