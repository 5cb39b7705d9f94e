#pragma once

#include "LibArchive.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

/// What every test of the codec stands on: a device with a folder to pack, and one to unpack into.
class LibArchiveFixture : public testing::Test {
protected:
    /// By path below a folder, the content of each file; of each folder, its path and "/", nothing.
    using Tree = std::map<std::string, std::string>;

    LibArchiveFixture();

    static constexpr auto archivePath = "/var/mobile/Documents/backup.tar.gz";
    static constexpr auto packedPath = "/var/mobile/tmp/packed";
    static constexpr auto unpackedPath = "/var/mobile/tmp/unpacked";

    /// Makes a file in the folder to pack.
    void put(const std::string& name, std::string_view content) const;

    static Result<void> pack() { return LibArchive::createArchiveAtPath(archivePath, packedPath); }

    static Result<void> unpack() { return LibArchive::extractArchiveAtPath(archivePath, unpackedPath); }

    /// Unpacks an archive of those bytes into the folder, which is emptied before.
    [[nodiscard]] Result<void> unpack(std::string_view bytes) const;

    /// What is in the folder that is unpacked into, and in any other.
    [[nodiscard]] Tree unpacked() const { return treeAt(unpackedPath); }

    [[nodiscard]] Tree treeAt(std::string_view devicePath) const;

    /// The archive's content behind its compression, as the program gzip sees it.
    [[nodiscard]] std::string tarBytes() const;

    /// What a shell's command, which has to succeed, writes to its output.
    static std::string outputOf(const std::string& command);

    /// The archive, on the host.
    [[nodiscard]] std::string hostArchive() const { return device.hostPath(archivePath); }

    [[nodiscard]] std::string hostPacked() const { return device.hostPath(packedPath); }

    static void expectErrorForWriting(const Result<void>& result);
    static void expectErrorForReading(const Result<void>& result);

    /// Expects the failure of which there is no more to say.
    static void expectFailureWithoutError(const Result<void>& result);

    TestDevice device;

private:
    static void expectError(const Result<void>& result, std::int64_t code, const std::string& text);
};
