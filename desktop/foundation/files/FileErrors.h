#pragma once

#include "Foundation/NSError.h"

#include <string>
#include <string_view>

/// What was being done with a file or a folder when it failed.
enum class FileOperation { Read, List, CreateDirectory, Remove, Copy };

/// The platform's error for an operation that the host refused.
/// \param error the host's error number, which the underlying error tells
/// \param path what was operated on; for a copy the original
/// \param toFolder the folder that a copy or a new folder was to be made in
/// \param translated finds an English text, in which "{x}" and "{y}" stand for names, in another language
[[nodiscard]] Ref<NSError> fileError(FileOperation operation, int error, std::string_view path,
                                     std::string_view toFolder, std::string (*translated)(std::string_view));
