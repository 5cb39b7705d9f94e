#pragma once

#include "ObjectiveC/Ref.h"
#include "files/DeviceRoot.h"
#include "time/Clock.h"

#include <limits>
#include <memory>
#include <string>

class ApplicationSuspension;
class ApplicationTermination;
class DarwinNotifications;
class DesktopBundle;
class MainQueueScheduler;
class PreferenceDomains;
class SystemSounds;
class UrlOpener;

/// The device that this process stands for: its file system, time, settings of language and region. One at a
/// time; the contract's functions act on it. Made by the host program, or by a test.
class Device {
public:
    struct Options {
        DeviceRoot root;
        std::unique_ptr<Clock> clock;
        std::string locale = "en_US"; ///< as ICU names locales
        std::string timeZone = "UTC"; ///< as the time-zone database names zones; an unknown one counts as UTC
        std::string mainBundlePath = "/Applications/Preferences.app";
    };

    /// Becomes the current device, and makes the folders that every device has. \pre there is no other
    explicit Device(Options options);
    ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// The device there is; ends the program with a message when there is none.
    [[nodiscard]] static Device& current();

    [[nodiscard]] const DeviceRoot& root() const { return *root_; }

    [[nodiscard]] const Clock& clock() const { return *clock_; }

    /// The present moment, for what is made now: each a little later than the one before, also while time
    /// stands still, so that they are in the order in which they were made.
    [[nodiscard]] NSDate momentOfCreation();

    [[nodiscard]] const std::string& locale() const { return locale_; }

    [[nodiscard]] const std::string& timeZone() const { return timeZone_; }

    [[nodiscard]] const Ref<DesktopBundle>& mainBundle() const { return mainBundle_; }

    [[nodiscard]] const std::shared_ptr<PreferenceDomains>& preferenceDomains() const {
        return preferenceDomains_;
    }

    [[nodiscard]] MainQueueScheduler& mainQueue() { return *mainQueue_; }

    [[nodiscard]] DarwinNotifications& notifications() { return *notifications_; }

    [[nodiscard]] SystemSounds& sounds() { return *sounds_; }

    [[nodiscard]] UrlOpener& urls() { return *urls_; }

    [[nodiscard]] ApplicationSuspension& suspensions() { return *suspensions_; }

    [[nodiscard]] ApplicationTermination& terminations() { return *terminations_; }

    /// The user's folders, as device paths without a "/" at the end.
    static constexpr auto documentsPath = "/var/mobile/Documents";
    static constexpr auto temporaryPath = "/var/mobile/tmp";

private:
    std::shared_ptr<const DeviceRoot> root_; ///< preference domains keep it when they outlive the device
    std::unique_ptr<Clock> clock_;
    double lastCreation_ =
        std::numeric_limits<double>::lowest(); ///< as a time interval since the reference date
    std::string locale_;
    std::string timeZone_;
    Ref<DesktopBundle> mainBundle_;
    std::shared_ptr<PreferenceDomains> preferenceDomains_;
    std::unique_ptr<MainQueueScheduler> mainQueue_;
    std::unique_ptr<DarwinNotifications> notifications_;
    std::unique_ptr<SystemSounds> sounds_;
    std::unique_ptr<UrlOpener> urls_;
    std::unique_ptr<ApplicationSuspension> suspensions_;
    std::unique_ptr<ApplicationTermination> terminations_;
};
