#include "RecordingLibrary.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace {

RecordingLibrary* currentLibrary = nullptr;

std::int64_t answer(const std::string& function, const std::string& arguments = "") {
    return RecordingLibrary::current().answer(function, arguments);
}

int status(const std::string& function, const std::string& arguments = "") {
    return static_cast<int>(answer(function, arguments));
}

template <class T>
T* make(const std::string& function) {
    answer(function);
    RecordingLibrary::current().count(1);
    return new T;
}

template <class T>
void end(T* object) {
    RecordingLibrary::current().count(-1);
    delete object;
}

/// Where the name of an open file leads on the host.
std::string fileNamed(const char* name) {
    return std::filesystem::read_symlink(name).filename();
}

} // namespace

/// A handle, and how far its archive has been read.
struct archive {
    std::size_t nextItem = 0;
    std::size_t nextBlock = 0;
};

struct archive_entry {
    RecordingLibrary::Item item{};
};

RecordingLibrary::RecordingLibrary() {
    if (currentLibrary != nullptr)
        std::abort();
    currentLibrary = this;
}

RecordingLibrary::~RecordingLibrary() {
    currentLibrary = nullptr;
}

RecordingLibrary& RecordingLibrary::current() {
    return *currentLibrary;
}

std::int64_t RecordingLibrary::answer(const std::string& function, const std::string& arguments) {
    calls_ += function + (arguments.empty() ? "" : " " + arguments) + "\n";
    auto& waiting = answers[function];
    if (waiting.empty())
        return 0;
    const auto next = waiting.front();
    waiting.pop_front();
    return next;
}

std::string RecordingLibrary::takeCalls() {
    return std::exchange(calls_, "");
}

extern "C" {

archive* archive_write_new() {
    return make<archive>("write_new");
}

int archive_write_add_filter_gzip(archive* /*writer*/) {
    return status("write_add_filter_gzip");
}

int archive_write_set_format_pax_restricted(archive* /*writer*/) {
    return status("write_set_format_pax_restricted");
}

int archive_write_open_filename(archive* /*writer*/, const char* file) {
    return status("write_open_filename", fileNamed(file));
}

archive_entry* archive_entry_new() {
    return make<archive_entry>("entry_new");
}

void archive_entry_set_pathname(archive_entry* /*entry*/, const char* name) {
    answer("entry_set_pathname", name);
}

void archive_entry_set_size(archive_entry* /*entry*/, la_int64_t size) {
    answer("entry_set_size", std::to_string(size));
}

void archive_entry_set_filetype(archive_entry* /*entry*/, unsigned type) {
    answer("entry_set_filetype", std::to_string(type));
}

void archive_entry_set_perm(archive_entry* /*entry*/, mode_t mode) {
    answer("entry_set_perm", std::to_string(mode));
}

int archive_write_header(archive* /*writer*/, archive_entry* /*entry*/) {
    return status("write_header");
}

la_ssize_t archive_write_data(archive* /*writer*/, const void* bytes, size_t size) {
    return answer("write_data", std::string(static_cast<const char*>(bytes), size));
}

void archive_entry_free(archive_entry* entry) {
    answer("entry_free");
    end(entry);
}

int archive_write_close(archive* /*writer*/) {
    return status("write_close");
}

int archive_write_free(archive* writer) {
    end(writer);
    return status("write_free");
}

archive* archive_read_new() {
    return make<archive>("read_new");
}

int archive_read_support_filter_gzip(archive* /*reader*/) {
    return status("read_support_filter_gzip");
}

int archive_read_support_format_tar(archive* /*reader*/) {
    return status("read_support_format_tar");
}

int archive_read_open_filename(archive* /*reader*/, const char* _filename, size_t _block_size) {
    return status("read_open_filename", fileNamed(_filename) + " " + std::to_string(_block_size));
}

int archive_read_next_header(archive* reader, archive_entry** entry) {
    static archive_entry shown;
    const auto told = status("read_next_header");
    const auto& items = RecordingLibrary::current().items;
    if (told != ARCHIVE_OK || reader->nextItem == items.size())
        return told != ARCHIVE_OK ? told : ARCHIVE_EOF;
    shown.item = items[reader->nextItem++];
    reader->nextBlock = 0;
    *entry = &shown;
    return ARCHIVE_OK;
}

const char* archive_entry_pathname(archive_entry* entry) {
    answer("entry_pathname");
    return entry->item.name;
}

mode_t archive_entry_filetype(archive_entry* entry) {
    answer("entry_filetype");
    return entry->item.type;
}

int archive_read_data_block(archive* a, const void** buff, size_t* size, la_int64_t* offset) {
    const auto told = status("read_data_block");
    const auto& blocks = RecordingLibrary::current().items.at(a->nextItem - 1).blocks;
    if (told != ARCHIVE_OK || a->nextBlock == blocks.size())
        return told != ARCHIVE_OK ? told : ARCHIVE_EOF;
    constexpr la_int64_t farBehind = 1000000;
    *offset = farBehind * static_cast<la_int64_t>(a->nextBlock);
    *buff = blocks[a->nextBlock].data();
    *size = blocks[a->nextBlock].size();
    ++a->nextBlock;
    return ARCHIVE_OK;
}

int archive_read_close(archive* /*reader*/) {
    return status("read_close");
}

int archive_read_free(archive* reader) {
    end(reader);
    return status("read_free");
}

} // extern "C"
