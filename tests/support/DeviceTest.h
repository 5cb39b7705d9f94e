#pragma once

#include "TestDevice.h"

#include <gtest/gtest.h>

#include <chrono>

/// A test with a device of its own, whose time it moves.
class DeviceTest : public testing::Test {
protected:
    explicit DeviceTest(const TestDevice::Settings& settings = {}) : device(settings) {}

    void advance(std::chrono::nanoseconds duration) { device.advance(duration); }

    void settle() { device.settle(); }

    TestDevice device;
};
