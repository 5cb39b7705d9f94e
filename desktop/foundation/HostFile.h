#pragma once

#include "FileDescriptor.h"

#include <cstddef>
#include <expected>
#include <string>

/// The whole content of an open file, from its beginning.
/// \returns or the host's error number: `EFBIG` when it is larger than the maximum, `EISDIR` for a folder,
/// `EINVAL` for anything else that is no regular file
[[nodiscard]] std::expected<std::string, int> readRegularFile(const FileDescriptor& file,
                                                              std::size_t maximumSize);
