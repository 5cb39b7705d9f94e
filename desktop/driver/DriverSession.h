#pragma once

#include "CommandTable.h"
#include "LineReader.h"

#include <cstdio>
#include <functional>

/// A conversation: reads commands line by line and answers each with a line, until the end of the input or
/// `quit`. Made by the program, which fills the table with the other
/// commands; outlives the table's use.
class DriverSession {
public:
    /// \param afterEach called after each command, before its answer is written
    DriverSession(CommandTable& commands, std::function<void()> afterEach);

    /// \returns whether every answer could be written
    [[nodiscard]] bool run(std::FILE* input, std::FILE* output);

private:
    [[nodiscard]] Answer answerTo(const LineReader::Line& line);

    CommandTable& commands_;
    std::function<void()> afterEach_;
    bool quit_ = false;
};
