#pragma once

#include "files/RegularFile.h"

#include <sys/types.h>

#include <expected>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

/// The library files that the host's loader has. It is led to a file by the number of an open descriptor and
/// from then on takes that for the library's name, so each file keeps the one descriptor that it was loaded
/// by until the loader has let go of it, which may be never. One for the process. Any thread.
class LibraryFiles {
public:
    [[nodiscard]] static LibraryFiles& shared();

    /// Gives a library back to the loader, which unloads it when nobody else has it.
    struct Close {
        void operator()(void* library) const { shared().unload(library); }
    };

    /// A library as dlsym(3) takes it; owned.
    using Handle = std::unique_ptr<void, Close>;

    /// Loads a library, or makes one more owner of a loaded one.
    /// \param flags those of dlopen(3)
    /// \returns or what the loader says against it
    [[nodiscard]] std::expected<Handle, std::string> load(RegularFile file, int flags);

private:
    using Identity = std::pair<dev_t, ino_t>;

    struct Entry {
        RegularFile file;
        void* library; ///< null while it is not loaded yet
    };

    LibraryFiles() = default;

    void unload(void* library);
    void forgetUnlessLoaded(std::map<Identity, Entry>::iterator entry);

    /// Recursive: what is loaded or unloaded may load others in its turn.
    std::recursive_mutex mutex_;
    std::map<Identity, Entry> entries_;
};
