#include "System/DynamicLibrary.h"

#include "Device.h"
#include "files/RegularFile.h"
#include "system/LibraryFiles.h"

#include <dlfcn.h>
#include <fcntl.h>

#include <utility>

namespace {

constexpr std::string_view searchedPrefix = "@rpath/";
constexpr std::string_view searchedFolder = "/var/jb/usr/lib/";

/// The device path that is meant, or "" when none is.
std::string devicePathOf(std::string_view path) {
    if (path.starts_with(searchedPrefix))
        return std::string(searchedFolder).append(path.substr(searchedPrefix.size()));
    return std::string(path.starts_with('/') ? path : "");
}

} // namespace

struct DynamicLibrary::State {
    LibraryFiles::Handle handle;
};

std::optional<DynamicLibrary> DynamicLibrary::open(std::string_view path, Binding binding) {
    auto file = RegularFile::open(Device::current().root(), devicePathOf(path), O_RDONLY);
    if (!file)
        return std::nullopt;
    auto handle = LibraryFiles::shared().load(std::move(*file), static_cast<int>(binding) | RTLD_LOCAL);
    if (!handle)
        return std::nullopt;
    return DynamicLibrary(std::make_unique<State>(std::move(*handle)));
}

DynamicLibrary::DynamicLibrary(std::unique_ptr<State> state) : state_(std::move(state)) {}

DynamicLibrary::DynamicLibrary(DynamicLibrary&& other) noexcept = default;

DynamicLibrary::~DynamicLibrary() = default;

void* DynamicLibrary::symbol(const std::string& name) const {
    return state_ ? dlsym(state_->handle.get(), name.c_str()) : nullptr;
}

void DynamicLibrary::close() {
    state_.reset();
}
