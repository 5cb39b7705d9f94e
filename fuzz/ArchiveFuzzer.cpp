#include "BackupFiles.h"
#include "Device.h"
#include "GzipBytes.h"
#include "LibArchive.h"
#include "time/RealClock.h"

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

/// By path below a folder, the content of each file; of each folder, nothing behind its path and "/".
using Tree = std::map<std::string, std::string>;

void require(bool condition) {
    if (!condition)
        std::abort();
}

/// A device in a folder that nothing else is in, so that whatever is written beside it is seen.
class Phone {
public:
    static const Phone& shared() {
        static const Phone phone;
        return phone;
    }

    /// Unpacks an archive of those bytes. \returns what there is then in the whole device
    [[nodiscard]] Tree unpacked(std::string_view bytes) const {
        clear();
        std::ofstream(root_ + "/archive", std::ios::binary) << bytes;
        const auto result = LibArchive::extractArchiveAtPath("/archive", "/deep/folder");
        fs::remove(root_ + "/archive");
        auto tree = treeAt(root_);
        require(result || (result.error() && result.error()->code() == LibArchive::CannotOpenForReading &&
                           tree.empty()));
        require(std::distance(fs::directory_iterator(home_), {}) == 1);
        return tree;
    }

    /// Whether what has been unpacked would be taken in as a backup.
    [[nodiscard]] static bool isBackup() { return holdsEssentialSettings("/deep/folder"); }

    /// Packs what has been unpacked; the files that are in no folder come out of that as they were.
    void packAgain() const {
        const auto result = LibArchive::createArchiveAtPath("/again", "/deep/folder");
        require(result.has_value());
        require(LibArchive::extractArchiveAtPath("/again", "/again unpacked").has_value());
        const auto before = treeAt(root_ + "/deep/folder");
        auto after = treeAt(root_ + "/again unpacked");
        for (const auto& [path, content] : before)
            require(path.contains('/') || after[path] == content);
    }

private:
    Phone() {
        require(mkdtemp(home_.data()) != nullptr);
        root_ = home_ + "/root";
        auto root = DeviceRoot::open(root_);
        require(root.has_value());
        device_ = std::make_unique<Device>(
            Device::Options{.root = std::move(*root), .clock = std::make_unique<RealClock>()});
    }

    ~Phone() { fs::remove_all(home_); }

    void clear() const {
        for (const auto& entry : fs::directory_iterator(root_))
            fs::remove_all(entry.path());
    }

    static Tree treeAt(const std::string& folder) {
        Tree tree;
        if (!fs::exists(folder))
            return tree;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            const auto path = entry.path().string().substr(folder.size() + 1);
            if (entry.is_directory())
                tree[path + "/"];
            else
                tree[path] = contentOf(entry.path());
        }
        return tree;
    }

    static std::string contentOf(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string home_ = (fs::temp_directory_path() / "corvex-fuzz-XXXXXX").string();
    std::string root_;
    std::unique_ptr<Device> device_;
};

} // namespace

/// Whatever an archive holds is judged, stays in the device, is the same with another compression, and is
/// packed again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view archive(reinterpret_cast<const char*>(bytes), size);
    const auto& phone = Phone::shared();
    const auto tree = phone.unpacked(archive);
    require(!Phone::isBackup() || tree.contains("deep/folder/preferences.plist"));
    if (tree.contains("deep/folder/"))
        phone.packAgain();
    if (!archive.starts_with("\x1F\x8B"))
        require(phone.unpacked(gzipped(archive)) == tree);
    return 0;
}
