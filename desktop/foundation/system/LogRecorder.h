#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Hears every log line while it lives, as it was given and in the order in which they were written. Any
/// thread.
class LogRecorder {
public:
    LogRecorder();
    ~LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// The lines heard since the last call.
    [[nodiscard]] std::vector<std::string> take();

private:
    friend void logLine(std::string_view line);

    /// Lets every recorder that lives hear a line.
    static void recordLine(std::string_view line);

    std::vector<std::string> lines_;
};
