#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, one limit of this process is lower than it was.
class LowerLimit {
public:
    LowerLimit(__rlimit_resource resource, rlim_t limit);
    ~LowerLimit();
    LowerLimit(const LowerLimit&) = delete;
    LowerLimit& operator=(const LowerLimit&) = delete;

private:
    __rlimit_resource resource_;
    rlimit before_{};
    sighandler_t handlerBefore_;
};
