#include "AllCommands.h"
#include "CommandTable.h"
#include "DeviceInstaller.h"
#include "DrivenShell.h"
#include "PictureMemory.h"
#include "ProcessorTime.h"
#include "Shell.h"
#include "TestDevice.h"
#include "screen/Compositor.h"
#include "screen/IdlePreparation.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"

#include <QGuiApplication>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

/// Measures the whole program on a phone at 3x: the processor's time from its start to the first picture of
/// the pane, without that of installing, and the memory in use after ten rounds through all of the pane's
/// pages, with pictures on the way and at rest. Prints both; fails when it is above 150 MB.

namespace {

constexpr auto rounds = 10;
constexpr auto largestMemory = 150.0; // MB
constexpr std::array pages{"Banner", "Organize",   "Labels", "General",
                           "Colors", "Background", "Extra",  "Backups"};

[[noreturn]] void fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

/// Of what the process is told by the system, in MB.
double memory(std::string_view field) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(field))
            return std::stod(line.substr(field.size())) * 1024 / 1e6; // which is told in KiB
    }
    fail("the memory in use is not told");
}

class DrivenPane {
public:
    explicit DrivenPane(TestDevice& device) {
        addAllCommands(commands_, {.application = driven_,
                                   .touches = touches_,
                                   .compositor = compositor_,
                                   .clock = device.clock(),
                                   .log = device.log()});
    }

    void open() {
        command("open");
        compositor_.render();
        if (compositor_.lastDamage().isEmpty())
            fail("nothing was painted");
    }

    /// What is new, which comes with the first opening.
    void readWhatIsNew() {
        show("advance 0.3");
        show("settle");
        show("swipe-down");
        show("settle");
    }

    void visitPages() {
        for (const auto* const page : pages) {
            go("tap " + std::string(page));
            go("back");
        }
        for (const auto* const line : {"tap gear.badge", "tap \"Reset Settings\"", "tap Cancel"})
            go(line);
    }

private:
    void command(const std::string& line) {
        if (const auto answer = commands_.run(line); !answer)
            fail(line + ": " + answer.error());
    }

    void show(const std::string& line) {
        command(line);
        compositor_.render();
    }

    /// There and to rest, with a picture on the way.
    void go(const std::string& line) {
        show(line);
        show("advance 0.2");
        show("settle");
        while (prepareWhileIdle()) { // as the window does while nothing moves
        }
    }

    Screen screen_{{.idiom = Idiom::Phone, .style = UserInterfaceStyle::Light, .scale = 3, .size = {}}};
    Shell shell_;
    DrivenShell driven_{shell_};
    TouchDispatcher touches_;
    Compositor compositor_{screen_};
    CommandTable commands_;
};

} // namespace

int main(int argc, char** argv) {
    giveBackPictureMemory();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    TestDevice device;
    const auto installing = processorTime();
    if (!DeviceInstaller(DEVICE_TREE).install(Device::current().root()))
        fail("the pane cannot be installed");
    const auto installed = processorTime();
    DrivenPane pane(device);
    pane.open();
    const auto start = processorTime() - (installed - installing);
    std::printf("from the start to the pane's first picture: %.0f ms\n", start.count());
    pane.readWhatIsNew();
    for (auto round = 0; round < rounds; ++round)
        pane.visitPages();
    const auto used = memory("VmRSS:");
    std::printf("memory after %d rounds of all pages: %.0f MB (at most %.0f); the most until then: %.0f MB\n",
                rounds, used, largestMemory, memory("VmHWM:"));
    return used <= largestMemory ? EXIT_SUCCESS : EXIT_FAILURE;
}
