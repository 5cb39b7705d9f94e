#include "LowerLimit.h"

#include <gtest/gtest.h>

LowerLimit::LowerLimit(__rlimit_resource resource, rlim_t limit)
    : resource_(resource),
      handlerBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(resource_, &before_), 0);
    const rlimit lower{.rlim_cur = limit, .rlim_max = before_.rlim_max};
    EXPECT_EQ(setrlimit(resource_, &lower), 0);
}

LowerLimit::~LowerLimit() {
    EXPECT_EQ(setrlimit(resource_, &before_), 0);
    static_cast<void>(std::signal(SIGXFSZ, handlerBefore_));
}
