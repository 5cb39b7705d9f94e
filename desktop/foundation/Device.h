#pragma once

#include "Clock.h"
#include "DarwinNotifications.h"
#include "DeviceRoot.h"
#include "Foundation/NSBundle.h"
#include "MainQueueScheduler.h"

#include <memory>
#include <string>

class PreferenceDomains;

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

<<<<<<< HEAD
    [[nodiscard]] const DeviceRoot& root() const { return options_.root; }

    [[nodiscard]] const Clock& clock() const { return *options_.clock; }

    [[nodiscard]] const std::string& locale() const { return options_.locale; }

    [[nodiscard]] const std::string& timeZone() const { return options_.timeZone; }

    [[nodiscard]] const std::string& mainBundlePath() const { return options_.mainBundlePath; }

    [[nodiscard]] const Ref<NSBundle>& mainBundle() const { return mainBundle_; }

=======
    [[nodiscard]] const DeviceRoot& root() const { return options_->root; }
    [[nodiscard]] const Clock& clock() const { return *options_->clock; }
    [[nodiscard]] const std::string& locale() const { return options_->locale; }
    [[nodiscard]] const std::string& timeZone() const { return options_->timeZone; }
    [[nodiscard]] const std::string& mainBundlePath() const { return options_->mainBundlePath; }
>>>>>>> defaults
    [[nodiscard]] MainQueueScheduler& mainQueue() { return mainQueue_; }
    [[nodiscard]] const std::shared_ptr<PreferenceDomains>& preferenceDomains() const { return preferenceDomains_; }

    [[nodiscard]] DarwinNotifications& notifications() { return notifications_; }

    /// The user's folders, as device paths without a "/" at the end.
    static constexpr auto documentsPath = "/var/mobile/Documents";
    static constexpr auto temporaryPath = "/var/mobile/tmp";
    static constexpr auto preferencesPath = "/var/mobile/Library/Preferences";

private:
<<<<<<< HEAD
    Options options_;
    Ref<NSBundle> mainBundle_;
    MainQueueScheduler mainQueue_;
    DarwinNotifications notifications_;
=======
    std::shared_ptr<const Options> options_; ///< preference domains keep the root when they outlive the device
    MainQueueScheduler mainQueue_;
    std::shared_ptr<PreferenceDomains> preferenceDomains_;
>>>>>>> defaults
};
