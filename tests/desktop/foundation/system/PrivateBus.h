#pragma once

#include "TestDevice.h"

#include <sys/types.h>

#include <string>

/// A D-Bus session bus of a test's own, in a temporary folder. It is ready once the object is made.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] const std::string& address() const { return address_; }

    /// Makes the bus take connections and bytes, and answer nothing.
    void freeze() const;

    /// Ends the bus.
    void kill();

private:
    TemporaryFolder folder_;
    std::string address_;
    pid_t process_ = -1;
};
