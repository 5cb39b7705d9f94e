#pragma once

#include "Journal.h"

/// The log lines in the journal, for the tests of the contract that every platform runs.
class LogRecorder {
public:
    LogRecorder() { takeJournal(); }

    /// The lines since the last call.
    [[nodiscard]] std::vector<std::string> take() {
        constexpr std::string_view mark = "log: ";
        std::vector<std::string> lines;
        for (const auto& line : takeJournal()) {
            if (line.starts_with(mark))
                lines.push_back(line.substr(mark.size()));
        }
        return lines;
    }
};
