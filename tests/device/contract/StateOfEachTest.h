#pragma once

#include "Runtime.h"

#include <gtest/gtest.h>

#include <optional>

/// Each test has an autorelease pool, as whatever runs on a device's main thread has, and a journal of its
/// own. What it has begun and left to be done ends with it.
class StateOfEachTest final : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;

private:
    std::optional<AutoreleasePool> pool_;
};
