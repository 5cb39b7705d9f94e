#pragma once

#include "Foundation/NSDate.h"
#include "Traits.h"

#include <QStringList>
#include <expected>
#include <optional>
#include <string>

/// What the program was called with. An option that may be left out is absent then.
struct ProgramOptions {
    enum class Mode { Window, Drive, Help, Version };

    Mode mode = Mode::Window;
    std::string deviceRoot; ///< a folder of the host
    bool install = false;   ///< into the device root, whatever is there already
    Idiom idiom = Idiom::Phone;
    std::optional<UserInterfaceStyle> appearance;
    std::optional<double> scale; ///< pixels per point
    std::optional<std::string> locale;
    std::optional<std::string> timeZone;
    std::optional<NSDate> now;

    /// \param arguments with the program's name first
    /// \returns what is wrong with them, when something is
    [[nodiscard]] static std::expected<ProgramOptions, std::string> parse(const QStringList& arguments);

    /// What `--help` prints.
    static const char* const help;
};
