#include "DeviceInstaller.h"

#include "files/AtomicFile.h"
#include "files/FolderListing.h"
#include "files/RegularFile.h"

#include <sys/stat.h>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr auto treeBesideProgramFolder = "share/corvex/device";
constexpr mode_t modeOfNewFolder = 0755;

std::string textOf(int error) {
    return std::generic_category().message(error);
}

std::optional<std::string> bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return stream.is_open() && !stream.bad() ? std::optional(std::move(bytes)) : std::nullopt;
}

bool holds(const DeviceRoot& root, const std::string& devicePath, const std::string& bytes) {
    auto file = RegularFile::open(root, devicePath, O_RDONLY);
    if (!file || std::cmp_not_equal(file->status().st_size, bytes.size()))
        return false;
    const auto data = file->readAll(bytes.size());
    return data && std::ranges::equal(data->bytes, std::as_bytes(std::span(bytes)));
}

/// Makes the folders that lead to a device path.
std::expected<void, int> makeFoldersTo(const DeviceRoot& root, const fs::path& devicePath) {
    fs::path folder;
    for (const auto& component : devicePath.parent_path()) {
        folder /= component;
        const auto place = root.locate(folder.string());
        if (!place)
            return std::unexpected(place.error());
        if (mkdirat(place->folder.get(), place->name.c_str(), modeOfNewFolder) != 0 && errno != EEXIST)
            return std::unexpected(errno);
    }
    return {};
}

std::expected<void, int> replace(const DeviceRoot& root, const fs::path& devicePath,
                                 const std::string& bytes) {
    if (const auto made = makeFoldersTo(root, devicePath); !made)
        return made;
    const auto place = root.locate(devicePath.string());
    return place ? AtomicFile::replace(place->folder, place->name, bytes) : std::unexpected(place.error());
}

/// The tree's files, in the order of their names. The error is the host's.
std::vector<fs::path> filesIn(const fs::path& tree, std::error_code& error) {
    std::vector<fs::path> files;
    for (fs::recursive_directory_iterator entry(tree, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->is_regular_file(error))
            files.push_back(entry->path());
    }
    std::ranges::sort(files);
    return files;
}

} // namespace

fs::path DeviceInstaller::treeOfThisProgram() {
    std::error_code none;
    return fs::read_symlink("/proc/self/exe", none).parent_path().parent_path() / treeBesideProgramFolder;
}

bool DeviceInstaller::isEmpty(const DeviceRoot& root) {
    const auto folder = root.open("/", O_RDONLY | O_DIRECTORY);
    if (!folder)
        return false;
    const auto names = namesInFolder(folder->get());
    return names && names->empty();
}

std::expected<std::size_t, std::string> DeviceInstaller::install(const DeviceRoot& root) const {
    std::error_code error;
    const auto files = filesIn(tree_, error);
    if (error)
        return std::unexpected("There is nothing to install in " + tree_.string() + ": " + error.message());
    std::size_t count = 0;
    for (const auto& file : files) {
        const auto isWritten = installFile(root, file);
        if (!isWritten)
            return std::unexpected(isWritten.error());
        count += *isWritten ? 1U : 0U;
    }
    return count;
}

std::expected<bool, std::string> DeviceInstaller::installFile(const DeviceRoot& root,
                                                              const fs::path& file) const {
    const auto bytes = bytesOf(file);
    if (!bytes)
        return std::unexpected(file.string() + " cannot be read.");
    const auto devicePath = "/" / file.lexically_relative(tree_);
    if (holds(root, devicePath.string(), *bytes))
        return false;
    if (const auto replaced = replace(root, devicePath, *bytes); !replaced)
        return std::unexpected(devicePath.string() + " cannot be written: " + textOf(replaced.error()));
    return true;
}
