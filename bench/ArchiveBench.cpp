#include "ChildProgram.h"
#include "GzipBytes.h"
#include "LibArchive.h"
#include "TarBytes.h"
#include "TestDevice.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

/// Measures packing and unpacking a folder against bsdtar, which takes the same library the same way: the
/// processor's time of both, side by side in one run. Then the memory that unpacking a file of 1 GiB takes.
/// Prints both; fails when the codec takes more than bsdtar, or more than a few MiB, and when what has been
/// measured was not done.

namespace {

namespace fs = std::filesystem;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto turns = 7;
constexpr auto images = 3;
constexpr std::size_t imageSize = 6'000'000; // bytes
constexpr auto largestRatio = 1.05;          // a twentieth is what measuring the same twice may differ by
constexpr auto largestGrowth = 8.0;          // MiB

constexpr auto packedPath = "/var/mobile/tmp/packed";
constexpr auto unpackedPath = "/var/mobile/tmp/unpacked";
constexpr auto archivePath = "/var/mobile/Documents/backup.tar.gz";

[[noreturn]] void fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

Milliseconds processorTime(__rusage_who whose) {
    rusage usage{};
    getrusage(whose, &usage);
    const auto timeOf = [](const timeval& time) {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return timeOf(usage.ru_utime) + timeOf(usage.ru_stime);
}

template <class Work>
Milliseconds timeOf(__rusage_who whose, Work work) {
    const auto begin = processorTime(whose);
    work();
    return processorTime(whose) - begin;
}

void run(const std::string& command) {
    if (ChildProgram("/bin/sh", {"-c", command}).wait() != 0)
        fail("failed: " + command);
}

/// Something like an image: half of it repeats.
std::string imageBytes(unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes;
    while (bytes.size() < imageSize) {
        const std::string pixels(16, static_cast<char>(random()));
        bytes += pixels;
        for (auto count = 0; count < 16; ++count)
            bytes += static_cast<char>(random());
    }
    return bytes;
}

void fill(const TestDevice& device) {
    device.write(std::string(packedPath) + "/preferences.plist", "<plist version=\"1.0\"><dict/></plist>");
    for (auto image = 0; image < images; ++image)
        device.write(std::string(packedPath) + "/image" + std::to_string(image),
                     imageBytes(static_cast<unsigned>(image)));
}

/// A folder of the host, emptied.
std::string emptied(const std::string& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

/// The fastest of all turns, which other work on the machine has held up least.
struct Times {
    std::vector<Milliseconds> ours;
    std::vector<Milliseconds> theirs;

    [[nodiscard]] double print(const char* what) {
        const auto own = *std::ranges::min_element(ours);
        const auto other = *std::ranges::min_element(theirs);
        if (own.count() <= 0 || other.count() <= 0)
            fail("nothing was measured");
        std::printf("%s %d files of %zu bytes: %.1f ms, bsdtar %.1f ms; ratio %.2f (at most %.2f)\n", what,
                    images, imageSize, own.count(), other.count(), own / other, largestRatio);
        return own / other;
    }
};

void pack(const TestDevice& device, Times& times) {
    const auto theirs = device.hostPath("/theirs.tar.gz");
    times.theirs.push_back(timeOf(RUSAGE_CHILDREN, [&] {
        run("cd '" + device.hostPath(packedPath) + "' && bsdtar -czf '" + theirs + "' *");
    }));
    times.ours.push_back(timeOf(RUSAGE_SELF, [&] {
        if (!LibArchive::createArchiveAtPath(archivePath, packedPath))
            fail("the folder was not packed");
    }));
    const auto size = static_cast<double>(fs::file_size(device.hostPath(archivePath)));
    const auto ratio = size / static_cast<double>(fs::file_size(theirs));
    if (ratio < 0.99 || ratio > 1.01)
        fail("both archives are not compressed alike");
}

void unpack(const TestDevice& device, Times& times) {
    const auto theirs = emptied(device.hostPath("/theirs"));
    times.theirs.push_back(timeOf(RUSAGE_CHILDREN, [&] {
        run("bsdtar -xf '" + device.hostPath(archivePath) + "' -C '" + theirs + "'");
    }));
    const auto ours = emptied(device.hostPath(unpackedPath));
    times.ours.push_back(timeOf(RUSAGE_SELF, [&] {
        if (!LibArchive::extractArchiveAtPath(archivePath, unpackedPath))
            fail("the archive was not unpacked");
    }));
    run("diff -r '" + ours + "' '" + theirs + "'");
    run("diff -r '" + ours + "' '" + device.hostPath(packedPath) + "'");
}

/// The most memory that the program has had since `resetPeak`, in MiB.
double peak() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        constexpr std::string_view field = "VmHWM:";
        if (line.starts_with(field))
            return std::stod(line.substr(field.size())) / 1024; // which is told in KiB
    }
    fail("the memory in use is not told");
}

void resetPeak() {
    if (!(std::ofstream("/proc/self/clear_refs") << "5"))
        fail("the memory in use cannot be measured");
}

/// An archive with a file of 1 GiB, all zeros, whose compression has many parts of the same bytes.
void writeLargeArchive(const TestDevice& device) {
    constexpr auto partSize = 64 * 1024 * 1024;
    constexpr auto parts = 16;
    const auto part = device.hostPath("/part");
    run("head -c " + std::to_string(partSize) + " /dev/zero | gzip -1 > '" + part + "'");
    std::ofstream archive(device.hostPath(archivePath), std::ios::binary);
    const TarBytes header =
        TarBytes().extended("size", std::to_string(1L * parts * partSize)).file("zeros", "");
    archive << gzipped(header.unended());
    for (auto count = 0; count < parts; ++count)
        archive << std::ifstream(part, std::ios::binary).rdbuf();
    archive << gzipped(TarBytes().ended());
}

double growthWhileUnpackingMuch(const TestDevice& device) {
    writeLargeArchive(device);
    const auto unpacked = emptied(device.hostPath(unpackedPath));
    resetPeak();
    const auto before = peak();
    if (!LibArchive::extractArchiveAtPath(archivePath, unpackedPath) ||
        fs::file_size(unpacked + "/zeros") != 1U << 30U)
        fail("the large file was not unpacked");
    return peak() - before;
}

} // namespace

int main() {
    const TestDevice device;
    const auto growth =
        growthWhileUnpackingMuch(device); // before there is memory to be had that is free again
    fill(device);
    Times packing;
    Times unpacking;
    for (auto turn = 0; turn < turns; ++turn) {
        pack(device, packing);
        unpack(device, unpacking);
    }
    const bool packsFast = packing.print("packing") <= largestRatio;
    const bool unpacksFast = unpacking.print("unpacking") <= largestRatio;
    std::printf("memory to unpack a file of 1 GiB: %.1f MiB (at most %.1f)\n", growth, largestGrowth);
    return packsFast && unpacksFast && growth <= largestGrowth ? EXIT_SUCCESS : EXIT_FAILURE;
}
