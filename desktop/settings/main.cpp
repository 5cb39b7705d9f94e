#include "PictureMemory.h"
#include "Program.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int wrongUsage = 2;

QStringList textsOf(int count, char** arguments) {
    QStringList texts;
    for (auto index = 0; index < count; ++index)
        texts.append(QString::fromLocal8Bit(arguments[index]));
    return texts;
}

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int print(const char* text) {
    return std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int run(const ProgramOptions& options, char** arguments) {
    const auto drives = options.mode == ProgramOptions::Mode::Drive;
    if (!drives && !hasDisplay()) {
        std::fputs("corvex-settings: there is no display here; --drive needs none\n", stderr);
        return EXIT_FAILURE;
    }
    if (drives)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    auto count = 1; // the options are none of Qt's
    if (drives) {
        const QGuiApplication application(count, arguments);
        return runDriver(options);
    }
    const QApplication application(count, arguments); // for the desktop's own dialogs
    return runWindow(options);
}

} // namespace

int main(int count, char** arguments) {
    giveBackPictureMemory();
    const auto options = ProgramOptions::parse(textsOf(count, arguments));
    if (!options) {
        std::fprintf(stderr, "corvex-settings: %s\n", options.error().c_str());
        return wrongUsage;
    }
    if (options->mode == ProgramOptions::Mode::Help)
        return print(ProgramOptions::help);
    if (options->mode == ProgramOptions::Mode::Version)
        return print("corvex-settings " CORVEX_VERSION "\n");
    return run(*options, arguments);
}
