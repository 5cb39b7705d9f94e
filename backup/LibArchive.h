#pragma once

#include "Foundation/NSError.h"
#include "ObjectiveC/NSObject.h"

#include <cstdint>
#include <string_view>

/// Turns a folder into a gzip-compressed tar file, and back. The only code that knows the format
/// (docs/archive-format.md). Never instantiated; nothing outlives a call. Any thread.
///
/// Failure has two forms: with an error when the archive cannot be opened, and without one, an empty Ref,
/// when packing was given up later.
class LibArchive final : public NSObject {
public:
    /// The codes of the errors, whose domain is "com.orvel.corvex". Never renumbered.
    enum ErrorCode : std::int64_t {
        CannotOpenForWriting = 1, ///< "Failed to open archive for writing"
        CannotOpenForReading = 2, ///< "Failed to open archive for reading"
    };

    LibArchive() = delete;

    /// Packs all that is below a folder, which may be missing: then the archive is empty. An archive that is
    /// there already is replaced. Everything is stored as a file; only files have content.
    /// \param path the archive, in a folder that exists
    /// \returns success when every item was packed. After a failure the archive stays as far as it got.
    [[nodiscard]] static Result<void> createArchiveAtPath(std::string_view path,
                                                          std::string_view contentsPath);

    /// Unpacks the files of an archive, with the folders that they are in, by the names that it gives: also
    /// when those lead out of `toPath`. A file that is there already is written over from its start and keeps
    /// what lies beyond.
    /// \returns success whenever the archive could be opened, however much of it could be read and written
    [[nodiscard]] static Result<void> extractArchiveAtPath(std::string_view path, std::string_view toPath);
};
