#pragma once

#include "Device.h"
#include "system/LogRecorder.h"
#include "time/VirtualClock.h"

#include <chrono>
#include <string>
#include <string_view>

/// A folder of the host that is removed, with all that is in it, at the end of the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    /// \param parent ends with "/"
    explicit TemporaryFolder(const std::string& parent);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// A device in a temporary folder, with virtual time from 2026-11-16 03:12:00 UTC on, and its log.
class TestDevice {
public:
    /// The device's settings; the root and the clock are the test device's own.
    struct Settings {
        std::string locale = "en_US";
        std::string timeZone = "UTC";
        DeviceRoot::Resolution resolution = DeviceRoot::Resolution::Kernel;
    };

    TestDevice() : TestDevice(Settings()) {}

    explicit TestDevice(const Settings& settings);

    [[nodiscard]] VirtualClock& clock() { return *clock_; }

    [[nodiscard]] LogRecorder& log() { return log_; }

    /// Lets time pass, and runs what falls due.
    void advance(std::chrono::nanoseconds duration);
    /// Lets time pass until nothing waits. Fails the test when something still waits after a minute.
    void settle();

    /// Where a device path is on the host, for looking at the device from outside. No link is followed.
    [[nodiscard]] std::string hostPath(std::string_view devicePath) const;

    /// The bytes of a file, which must exist.
    [[nodiscard]] std::string read(std::string_view devicePath) const;

    /// Makes or replaces a file, and its folders, from outside.
    void write(std::string_view devicePath, std::string_view content) const;

private:
    TemporaryFolder folder_;
    LogRecorder log_;
    VirtualClock* clock_ = nullptr; ///< the device's
    Device device_;
};
