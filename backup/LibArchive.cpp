#include "LibArchive.h"

#include "Foundation/NSFileHandle.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "System/FileSystemRepresentation.h"
#include "System/UTF8Locale.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstddef>
#include <memory>
#include <string>

namespace {

constexpr std::string_view errorDomain = "com.orvel.corvex";
constexpr std::size_t blockSize = 10240; // bytes read at a time
constexpr auto permissions = 0644;

const Class classObject = Class::define<LibArchive>("LibArchive");

template <auto end>
struct End {
    template <class T>
    void operator()(T* object) const {
        end(object);
    }
};

using Writer = std::unique_ptr<archive, End<archive_write_free>>;
using Reader = std::unique_ptr<archive, End<archive_read_free>>;
using Entry = std::unique_ptr<archive_entry, End<archive_entry_free>>;

std::unexpected<Ref<NSError>> failure(LibArchive::ErrorCode code, std::string_view text) {
    return std::unexpected(
        NSError::errorWithDomain(errorDomain, code, {{std::string(NSLocalizedDescriptionKey), text}}));
}

bool openForWriting(archive& writer, const std::optional<FileSystemRepresentation>& file) {
    return file && archive_write_open_filename(&writer, file->c_str()) == ARCHIVE_OK;
}

bool openForReading(archive& reader, const std::optional<FileSystemRepresentation>& file) {
    return file && archive_read_open_filename(&reader, file->c_str(), blockSize) == ARCHIVE_OK;
}

/// Whatever the item is, it is declared a file: what it lacks of its size the library fills with zeros.
Entry makeEntry(const std::string& name, const NSFileAttributes& attributes) {
    Entry entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(attributes.fileSize));
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), permissions);
    return entry;
}

/// A file that cannot be read is no failure, nor is one that has outgrown its declared size. Of the results
/// -1 alone counts: after another failure the library refuses the next header.
bool packContent(archive& writer, const std::string& path) {
    const auto data = NSData::dataWithContentsOfFile(path);
    return !data || archive_write_data(&writer, data->bytes.data(), data->bytes.size()) != -1;
}

bool packItem(archive& writer, std::string_view folder, const std::string& name) {
    const auto path = stringByAppendingPathComponent(folder, name);
    const auto attributes =
        NSFileManager::defaultManager().attributesOfItemAtPath(path).value_or(NSFileAttributes());
    const auto entry = makeEntry(name, attributes);
    if (archive_write_header(&writer, entry.get()) != ARCHIVE_OK)
        return false;
    return attributes.fileType != NSFileType::Regular || packContent(writer, path);
}

bool packItems(archive& writer, std::string_view folder) {
    for (const auto& name : NSFileManager::defaultManager().enumeratorAtPath(folder)) {
        if (!packItem(writer, folder, name))
            return false;
    }
    return true;
}

Ref<NSFileHandle> openOrMakeFile(const std::string& path) {
    auto file = NSFileHandle::fileHandleForWritingAtPath(path);
    if (file)
        return file;
    NSFileManager::defaultManager().createFileAtPath(path, {});
    return NSFileHandle::fileHandleForWritingAtPath(path);
}

/// The blocks are written one after the other, wherever the archive says that they belong: holes vanish.
/// Without a file they are read all the same.
void unpackContent(archive& reader, const std::string& path) {
    const auto file = openOrMakeFile(path);
    const void* block = nullptr;
    std::size_t size = 0;
    la_int64_t offset = 0;
    while (archive_read_data_block(&reader, &block, &size, &offset) == ARCHIVE_OK) {
        if (file)
            file->writeData(NSData::dataWithBytes({static_cast<const char*>(block), size}));
    }
    if (file)
        file->closeFile();
}

void unpackItem(archive& reader, archive_entry& entry, std::string_view folder) {
    const auto name = stringWithUTF8String(archive_entry_pathname(&entry));
    if (!name)
        return;
    const auto path = stringByAppendingPathComponent(folder, *name);
    // Where no folder comes to be, no file does.
    [[maybe_unused]] const auto made =
        NSFileManager::defaultManager().createDirectoryAtPath(stringByDeletingLastPathComponent(path), true);
    if (archive_entry_filetype(&entry) == AE_IFREG)
        unpackContent(reader, path);
}

void unpackItems(archive& reader, std::string_view folder) {
    archive_entry* entry = nullptr;
    while (archive_read_next_header(&reader, &entry) == ARCHIVE_OK)
        unpackItem(reader, *entry, folder);
}

} // namespace

Result<void> LibArchive::createArchiveAtPath(std::string_view path, std::string_view contentsPath) {
    const UTF8Locale locale; // the library translates names from the locale's encoding
    const Writer writer(archive_write_new());
    archive_write_add_filter_gzip(writer.get());
    archive_write_set_format_pax_restricted(writer.get());
    const auto file = FileSystemRepresentation::ofFileForWriting(path);
    if (!openForWriting(*writer, file))
        return failure(CannotOpenForWriting, "Failed to open archive for writing");
    const bool packed = packItems(*writer, contentsPath);
    archive_write_close(writer.get());
    return packed ? Result<void>() : std::unexpected(nullptr);
}

Result<void> LibArchive::extractArchiveAtPath(std::string_view path, std::string_view toPath) {
    const UTF8Locale locale; // and to it
    const Reader reader(archive_read_new());
    archive_read_support_filter_gzip(reader.get());
    archive_read_support_format_tar(reader.get());
    const auto file = FileSystemRepresentation::ofFileForReading(path);
    if (!openForReading(*reader, file))
        return failure(CannotOpenForReading, "Failed to open archive for reading");
    unpackItems(*reader, toPath);
    archive_read_close(reader.get());
    return {};
}
