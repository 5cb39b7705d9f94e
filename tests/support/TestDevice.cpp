#include "TestDevice.h"

#include "time/MainQueueScheduler.h"
#include "time/UnixTime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <utility>

namespace {

constexpr NSDate start = dateOfUnixTime(1794798720); // 2026-11-16 03:12:00 UTC

Device::Options optionsFor(const TestDevice::Settings& settings, const std::string& folder,
                           VirtualClock*& clock) {
    auto root = DeviceRoot::open(folder, settings.resolution);
    if (!root)
        std::abort();
    auto virtualClock = std::make_unique<VirtualClock>(start);
    clock = virtualClock.get();
    return {.root = std::move(*root),
            .clock = std::move(virtualClock),
            .locale = settings.locale,
            .timeZone = settings.timeZone};
}

} // namespace

TemporaryFolder::TemporaryFolder() : TemporaryFolder(testing::TempDir()) {}

TemporaryFolder::TemporaryFolder(const std::string& parent) : path_(parent + "corvex-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr)
        std::abort();
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

TestDevice::TestDevice(const Settings& settings) : device_(optionsFor(settings, folder_.path(), clock_)) {}

void TestDevice::advance(std::chrono::nanoseconds duration) {
    device_.mainQueue().advance(*clock_, duration);
}

void TestDevice::settle() {
    EXPECT_TRUE(device_.mainQueue().settle(*clock_, clock_->uptime() + std::chrono::minutes(1)));
}

std::string TestDevice::hostPath(std::string_view devicePath) const {
    return folder_.path() + std::string(devicePath);
}

std::string TestDevice::read(std::string_view devicePath) const {
    std::ifstream file(hostPath(devicePath), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << "no file at " << devicePath;
    return {std::istreambuf_iterator<char>(file), {}};
}

void TestDevice::write(std::string_view devicePath, std::string_view content) const {
    const std::filesystem::path path = hostPath(devicePath);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    ASSERT_TRUE(file.good()) << "cannot write " << devicePath;
}
