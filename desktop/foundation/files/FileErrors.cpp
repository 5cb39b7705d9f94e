#include "files/FileErrors.h"

#include "Foundation/NSString.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <string>
#include <system_error>

namespace {

using enum FileOperation;

/// The platform's codes of file errors.
enum Code : std::int64_t {
    NSFileNoSuchFileError = 4,
    NSFileReadUnknownError = 256,
    NSFileReadNoPermissionError = 257,
    NSFileReadInvalidFileNameError = 258,
    NSFileReadNoSuchFileError = 260,
    NSFileWriteUnknownError = 512,
    NSFileWriteNoPermissionError = 513,
    NSFileWriteInvalidFileNameError = 514,
    NSFileWriteFileExistsError = 516,
    NSFileWriteOutOfSpaceError = 640,
    NSFileWriteVolumeReadOnlyError = 642,
};

constexpr int anyOther = 0;

/// What the platform makes of one error of the host. In the text {x} is the thing's name and {y} that of the
/// folder that something was to be made in.
struct Outcome {
    FileOperation operation;
    int error;
    Code code;
    std::string_view text;
};

// clang-format off
constexpr auto outcomes = std::to_array<Outcome>({
    {Read, ENOENT,       NSFileReadNoSuchFileError,       "The file “{x}” couldn’t be opened because there is no such file."},
    {Read, EACCES,       NSFileReadNoPermissionError,     "The file “{x}” couldn’t be opened because you don’t have permission to view it."},
    {Read, ENAMETOOLONG, NSFileReadInvalidFileNameError,  "The file “{x}” couldn’t be opened because the file name is invalid."},
    {Read, anyOther,     NSFileReadUnknownError,          "The file “{x}” couldn’t be opened."},

    {List, ENOENT,       NSFileReadNoSuchFileError,       "The folder “{x}” doesn’t exist."},
    {List, EACCES,       NSFileReadNoPermissionError,     "The folder “{x}” couldn’t be opened because you don’t have permission to view it."},
    {List, ENAMETOOLONG, NSFileReadInvalidFileNameError,  "The folder “{x}” couldn’t be opened because the file name is invalid."},
    {List, anyOther,     NSFileReadUnknownError,          "The file “{x}” couldn’t be opened."},

    {CreateDirectory, ENOENT,       NSFileNoSuchFileError,           "The folder “{x}” doesn’t exist."},
    {CreateDirectory, EACCES,       NSFileWriteNoPermissionError,    "You don’t have permission to save the file “{x}” in the folder “{y}”."},
    {CreateDirectory, EEXIST,       NSFileWriteFileExistsError,      "The file “{x}” couldn’t be saved in the folder “{y}” because a file with the same name already exists."},
    {CreateDirectory, ENAMETOOLONG, NSFileWriteInvalidFileNameError, "The file “{x}” couldn’t be saved in the folder “{y}” because the file name is invalid."},
    {CreateDirectory, ENOSPC,       NSFileWriteOutOfSpaceError,      "The file “{x}” couldn’t be saved in the folder “{y}” because there isn’t enough space."},
    {CreateDirectory, EROFS,        NSFileWriteVolumeReadOnlyError,  "The file “{x}” couldn’t be saved in the folder “{y}” because the volume is read only."},
    {CreateDirectory, anyOther,     NSFileWriteUnknownError,         "The file “{x}” couldn’t be saved in the folder “{y}”."},

    {Remove, ENOENT,       NSFileNoSuchFileError,           "“{x}” couldn’t be removed."},
    {Remove, EACCES,       NSFileWriteNoPermissionError,    "“{x}” couldn’t be removed because you don’t have permission to access it."},
    {Remove, ENAMETOOLONG, NSFileWriteInvalidFileNameError, "“{x}” couldn’t be removed because the file name is invalid."},
    {Remove, EROFS,        NSFileWriteVolumeReadOnlyError,  "“{x}” couldn’t be removed because the volume is read only."},
    {Remove, anyOther,     NSFileWriteUnknownError,         "“{x}” couldn’t be removed."},

    {Copy, ENOENT,       NSFileNoSuchFileError,           "The file “{x}” doesn’t exist."},
    {Copy, EACCES,       NSFileWriteNoPermissionError,    "“{x}” couldn’t be copied because you don’t have permission to access “{y}”."},
    {Copy, EEXIST,       NSFileWriteFileExistsError,      "“{x}” couldn’t be copied to “{y}” because an item with the same name already exists."},
    {Copy, ENAMETOOLONG, NSFileWriteInvalidFileNameError, "“{x}” couldn’t be copied to “{y}” because the file name is invalid."},
    {Copy, ENOSPC,       NSFileWriteOutOfSpaceError,      "“{x}” couldn’t be copied to “{y}” because there isn’t enough space."},
    {Copy, EROFS,        NSFileWriteVolumeReadOnlyError,  "“{x}” couldn’t be copied to “{y}” because the volume is read only."},
    {Copy, anyOther,     NSFileWriteUnknownError,         "“{x}” couldn’t be copied to “{y}”."},
});
// clang-format on

/// One number for errors that mean the same here.
constexpr int kindOf(int error) {
    switch (error) {
    case EPERM:
        return EACCES;
    case EDQUOT:
        return ENOSPC;
    default:
        return error;
    }
}

const Outcome& outcomeOf(FileOperation operation, int error) {
    return *std::ranges::find_if(outcomes, [=](const Outcome& outcome) {
        return outcome.operation == operation &&
               (outcome.error == kindOf(error) || outcome.error == anyOther);
    });
}

std::string fillIn(std::string_view text, std::string_view x, std::string_view y) {
    constexpr std::size_t placeholderLength = 3;
    std::string filled;
    for (auto at = text.find('{'); at != std::string_view::npos; at = text.find('{')) {
        filled += text.substr(0, at);
        filled += text[at + 1] == 'x' ? x : y;
        text.remove_prefix(at + placeholderLength);
    }
    return filled += text;
}

} // namespace

Ref<NSError> fileError(FileOperation operation, int error, std::string_view path, std::string_view toFolder,
                       std::string (*translated)(std::string_view)) {
    const auto& outcome = outcomeOf(operation, error);
    auto underlying = NSError::errorWithDomain(
        NSPOSIXErrorDomain, error,
        {{std::string(NSLocalizedDescriptionKey), std::generic_category().message(error)}});
    const auto told = [&](std::string_view text) {
        return fillIn(text, lastPathComponent(path), lastPathComponent(toFolder));
    };
    return NSError::errorWithDomain(NSCocoaErrorDomain, outcome.code,
                                    {{std::string(NSLocalizedDescriptionKey), told(translated(outcome.text))},
                                     {std::string(NSDebugDescriptionErrorKey), told(outcome.text)},
                                     {std::string(NSFilePathErrorKey), path}},
                                    std::move(underlying));
}
