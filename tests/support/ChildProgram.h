#pragma once

#include "files/FileDescriptor.h"

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

/// Another program that runs, with pipes to its standard input and from its standard output. Killed at the
/// end of the object if it still runs.
class ChildProgram {
public:
    ChildProgram(const std::string& path, const std::vector<std::string>& arguments);
    ~ChildProgram();
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

    void sendLine(const std::string& line) const;

    /// The next line that it writes, waiting for it; nothing at the end of its output.
    [[nodiscard]] std::optional<std::string> readLine();

    /// Sends a line and waits for the one that answers it.
    [[nodiscard]] std::string ask(const std::string& line);

    /// Ends its input.
    void endInput();

    /// Nobody reads what it writes any more.
    void endOutput();

    /// Ends it as by `kill -9`. Its output so far can still be read.
    void kill() const;

    /// Waits for its end. \returns the status of waitpid(2)
    int wait();

private:
    pid_t process_ = -1;
    FileDescriptor input_;
    FileDescriptor output_;
    std::string unread_;
};
