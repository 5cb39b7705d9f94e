#pragma once

#include "ProgramOptions.h"

/// Becomes the device and drives it from standard input. \returns the exit code
[[nodiscard]] int runDriver(const ProgramOptions& options);

/// Becomes the device and shows it in a window until that is closed. \returns the exit code
[[nodiscard]] int runWindow(const ProgramOptions& options);
