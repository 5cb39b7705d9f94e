#include "Program.h"

#include "AllCommands.h"
#include "Device.h"
#include "DeviceInstaller.h"
#include "DeviceWindow.h"
#include "DrivenShell.h"
#include "DriverSession.h"
#include "FontFaces.h"
#include "WindowAccessibility.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "system/LogRecorder.h"
#include "system/UrlOpener.h"
#include "time/FrameClock.h"
#include "time/MainQueueScheduler.h"
#include "time/RealClock.h"
#include "time/VirtualClock.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLocale>
#include <QTimeZone>
#include <QUrl>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace {

/// What the device is when nothing else is asked for.
struct Region {
    std::string locale;
    std::string timeZone;
};

constexpr auto commonLocale = "en_US";

/// A desktop without a language of its own is taken for an English one.
Region regionOfDesktop() {
    const auto locale = QLocale::system();
    return {.locale = locale == QLocale::c() ? commonLocale : locale.name().toStdString(),
            .timeZone = QTimeZone::systemTimeZoneId().toStdString()};
}

/// Whether texts can be set as they are meant. Says what they lack.
bool hasFontFaces() {
    const auto found = FontFaces::check();
    if (!found)
        std::fprintf(stderr, "corvex-settings: %s\n", found.error().c_str());
    return found.has_value();
}

/// Opens the device root, and brings it up to date when it is empty or that was asked for. Says why not.
std::optional<DeviceRoot> readiedRoot(const ProgramOptions& options) {
    auto root = DeviceRoot::open(options.deviceRoot);
    if (!root) {
        std::fprintf(stderr, "corvex-settings: the device root %s cannot be opened: %s\n",
                     options.deviceRoot.c_str(), std::strerror(root.error()));
        return std::nullopt;
    }
    if (!options.install && !DeviceInstaller::isEmpty(*root))
        return std::move(*root);
    const auto installed = DeviceInstaller(DeviceInstaller::treeOfThisProgram()).install(*root);
    if (!installed) {
        std::fprintf(stderr, "corvex-settings: nothing can be installed into the device root %s: %s\n",
                     options.deviceRoot.c_str(), installed.error().c_str());
        return std::nullopt;
    }
    return std::move(*root);
}

Device::Options deviceOptions(const ProgramOptions& options, DeviceRoot root, std::unique_ptr<Clock> clock,
                              const Region& region) {
    return {.root = std::move(root),
            .clock = std::move(clock),
            .locale = options.locale.value_or(region.locale),
            .timeZone = options.timeZone.value_or(region.timeZone)};
}

Screen::Options screenOptions(const ProgramOptions& options) {
    return {.idiom = options.idiom,
            .style = options.appearance.value_or(UserInterfaceStyle::Light),
            .scale = options.scale.value_or(options.idiom == Idiom::Phone ? 3 : 2),
            .size = {}};
}

int drive(VirtualClock& clock, LogRecorder& log, const ProgramOptions& options) {
    Screen screen(screenOptions(options));
    Shell shell;
    DrivenShell application(shell);
    TouchDispatcher touches;
    Compositor compositor(screen);
    CommandTable commands;
    addAllCommands(commands, {.application = application,
                              .touches = touches,
                              .compositor = compositor,
                              .clock = clock,
                              .log = log});
    DriverSession session(commands, [&clock] { Device::current().mainQueue().advance(clock, {}); });
    return session.run(stdin, stdout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int runDriver(const ProgramOptions& options) {
    std::signal(SIGPIPE, SIG_IGN); // whoever reads the answers may go; then the writing fails
    if (!hasFontFaces())
        return EXIT_FAILURE;
    auto root = readiedRoot(options);
    if (!root)
        return EXIT_FAILURE;
    auto clock = std::make_unique<VirtualClock>(options.now.value_or(RealClock().date()));
    auto& time = *clock;
    LogRecorder log;
    const Device device(deviceOptions(options, std::move(*root), std::move(clock),
                                      {.locale = commonLocale, .timeZone = "UTC"}));
    return drive(time, log, options);
}

int runWindow(const ProgramOptions& options) {
    if (!hasFontFaces())
        return EXIT_FAILURE;
    auto root = readiedRoot(options);
    if (!root)
        return EXIT_FAILURE;
    auto clock = std::make_unique<FrameClock>();
    auto& time = *clock;
    const Device device(deviceOptions(options, std::move(*root), std::move(clock), regionOfDesktop()));
    Device::current().urls().setDesktop(
        [](const std::string& url) { return QDesktopServices::openUrl(QUrl(QString::fromStdString(url))); });
    Screen screen(screenOptions(options));
    Shell shell;
    TouchDispatcher touches;
    WindowAccessibility::install();
    DeviceWindow window(screen, touches,
                        {.scale = options.scale,
                         .followsAppearance = !options.appearance,
                         .goBack = [&shell] { shell.goBack(); },
                         .beginFrame = [&time] { time.beginFrame(); },
                         .showTime = [&shell] { shell.bars().refresh(); }});
    window.show();
    return QGuiApplication::exec();
}
