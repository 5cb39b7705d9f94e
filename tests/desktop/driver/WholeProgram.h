#pragma once

#include "DrivenShell.h"
#include "DriverSession.h"
#include "Shell.h"
#include "TestDevice.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"

#include <QJsonObject>
#include <memory>
#include <string>

/// All of the program in this process, as `--drive` puts it together, on a device on which everything that
/// was built is installed. It can be ended at any moment and started anew.
class WholeProgram {
public:
    explicit WholeProgram(const Screen::Options& screen = {}, const TestDevice::Settings& settings = {});
    ~WholeProgram();
    WholeProgram(const WholeProgram&) = delete;
    WholeProgram& operator=(const WholeProgram&) = delete;

    /// All that is written when the line is read.
    [[nodiscard]] std::string outputFor(const std::string& line);

    /// The answer to a line. Fails the test unless it is one line that holds an object with `ok`.
    [[nodiscard]] QJsonObject ask(const std::string& line);

    /// The same for a command that must be possible.
    QJsonObject done(const std::string& line);

    /// Opens the pane on a device where it never was, and takes what is new in it away.
    void openPane();

    /// Whether work waits on the main queue.
    [[nodiscard]] static bool waits();

    /// Ends the program, whatever it is at, and starts it on the same device.
    void restart(const Screen::Options& screen);

    [[nodiscard]] TestDevice& device() { return device_; }

    [[nodiscard]] Screen& screen() { return running_->screen; }

    [[nodiscard]] Shell& shell() { return running_->shell; }

    [[nodiscard]] const TouchDispatcher& touches() const { return running_->touches; }

private:
    /// What ends with the program.
    struct Running {
        Running(TestDevice& device, const Screen::Options& options);

        Screen screen;
        Shell shell;
        DrivenShell application{shell};
        TouchDispatcher touches;
        Compositor compositor{screen};
        CommandTable commands;
        DriverSession session;
    };

    TestDevice device_;
    std::unique_ptr<Running> running_;
};
