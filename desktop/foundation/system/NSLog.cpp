#include "Foundation/NSLog.h"

#include "system/LogRecorder.h"

#include <syslog.h>

#include <array>
#include <cstdio>
#include <mutex>
#include <string>

namespace {

/// Makes the order of lines the same for all who get them.
std::mutex logMutex;

constexpr std::string_view continuation = "\n    ";

bool isControlCharacter(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 0x20 || code == 0x7F;
}

/// The line as one entry of a log: what follows a line break is set off, so that it cannot pass for an entry
/// of its own, and other control characters, which could fool a terminal, are spelt out.
std::string logEntry(std::string_view line) {
    std::string entry;
    for (const char character : line) {
        if (character == '\n') {
            entry += continuation;
        } else if (isControlCharacter(character) && character != '\t') {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(character));
            entry += code.data();
        } else {
            entry += character;
        }
    }
    return entry;
}

} // namespace

void logLine(std::string_view line) {
    const auto entry = logEntry(line);
    const std::scoped_lock lock(logMutex);
    syslog(LOG_USER | LOG_NOTICE, "%s", entry.c_str());
    std::fprintf(stderr, "%s\n", entry.c_str());
    LogRecorder::recordLine(line);
}
