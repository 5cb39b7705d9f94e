#include "system/LibraryFiles.h"

#include <dlfcn.h>

#include <algorithm>
#include <string>

LibraryFiles& LibraryFiles::shared() {
    // Never destroyed: libraries are given back until the program's very end.
    static auto* const files = new LibraryFiles;
    return *files;
}

std::expected<LibraryFiles::Handle, std::string> LibraryFiles::load(RegularFile file, int flags) {
    const std::scoped_lock lock(mutex_);
    const Identity identity(file.status().st_dev, file.status().st_ino);
    const auto entry = entries_.try_emplace(identity, std::move(file), nullptr).first;
    auto* const library = dlopen(entry->second.file.openPath().c_str(), flags);
    if (library == nullptr) {
        std::string reason = dlerror(); // before the loader is asked anything else
        forgetUnlessLoaded(entry);
        return std::unexpected(std::move(reason));
    }
    entry->second.library = library;
    return Handle(library);
}

void LibraryFiles::unload(void* library) {
    const std::scoped_lock lock(mutex_);
    dlclose(library);
    const auto entry = std::ranges::find_if(
        entries_, [library](const auto& candidate) { return candidate.second.library == library; });
    forgetUnlessLoaded(entry);
}

void LibraryFiles::forgetUnlessLoaded(std::map<Identity, Entry>::iterator entry) {
    if (auto* const library = dlopen(entry->second.file.openPath().c_str(), RTLD_LAZY | RTLD_NOLOAD))
        dlclose(library);
    else
        entries_.erase(entry);
}
