#pragma once

#include <cstdio>
#include <functional>
#include <string_view>

/// Hears what is written to standard error at the moment that it is written, in place of what stands behind
/// it; lines of the log among it. Made and ended on the thread that writes.
class StandardErrorListener {
public:
    using Heard = std::function<void(std::string_view)>;

    explicit StandardErrorListener(Heard heard);
    ~StandardErrorListener();
    StandardErrorListener(const StandardErrorListener&) = delete;
    StandardErrorListener& operator=(const StandardErrorListener&) = delete;

private:
    Heard heard_;
    std::FILE* former_;
};
