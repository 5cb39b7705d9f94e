#include "LibArchiveFixture.h"

#include "ChildProgram.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

LibArchiveFixture::LibArchiveFixture() {
    EXPECT_EQ(chmod(device.hostPath("").c_str(), 0755), 0); // for tests without privileges
    fs::create_directories(hostPacked());
    fs::create_directories(device.hostPath(unpackedPath));
}

void LibArchiveFixture::put(const std::string& name, std::string_view content) const {
    device.write(std::string(packedPath) + "/" + name, content);
}

Result<void> LibArchiveFixture::unpack(std::string_view bytes) const {
    fs::remove(hostArchive()); // to overwrite a file takes longer
    device.write(archivePath, bytes);
    fs::remove_all(device.hostPath(unpackedPath));
    fs::create_directories(device.hostPath(unpackedPath));
    return unpack();
}

LibArchiveFixture::Tree LibArchiveFixture::treeAt(std::string_view devicePath) const {
    Tree tree;
    const auto folder = device.hostPath(devicePath);
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const auto name = entry.path().string().substr(folder.size() + 1);
        if (entry.is_directory())
            tree[name + "/"] = "";
        else
            tree[name] = device.read(std::string(devicePath) + "/" + name);
    }
    return tree;
}

std::string LibArchiveFixture::tarBytes() const {
    return outputOf("gzip -dc '" + hostArchive() + "'");
}

std::string LibArchiveFixture::outputOf(const std::string& command) {
    const TemporaryFolder folder;
    const auto output = folder.path() + "/output";
    const auto status = ChildProgram("/bin/sh", {"-c", "{ " + command + "; } > '" + output + "'"}).wait();
    std::ifstream file(output, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(status, 0) << command << '\n' << bytes;
    return bytes;
}

void LibArchiveFixture::expectErrorForWriting(const Result<void>& result) {
    expectError(result, 1, "Failed to open archive for writing");
}

void LibArchiveFixture::expectErrorForReading(const Result<void>& result) {
    expectError(result, 2, "Failed to open archive for reading");
}

void LibArchiveFixture::expectFailureWithoutError(const Result<void>& result) {
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error()) << result.error()->description();
}

void LibArchiveFixture::expectError(const Result<void>& result, std::int64_t code, const std::string& text) {
    ASSERT_FALSE(result);
    ASSERT_TRUE(result.error());
    EXPECT_EQ(result.error()->domain(), "com.orvel.corvex");
    EXPECT_EQ(result.error()->code(), code);
    EXPECT_EQ(result.error()->localizedDescription(), text);
    // Which would tell what else the error says.
    EXPECT_EQ(result.error()->description(),
              "Error Domain=com.orvel.corvex Code=" + std::to_string(code) + " \"" + text + "\"");
}
