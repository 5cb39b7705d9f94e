#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets a variable of this process's environment, or removes it, until the end of the object.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* const before = std::getenv(name))
            before_ = before;
        set(value);
    }

    ~EnvironmentVariable() { set(before_); }

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

    void set(const std::optional<std::string>& value) const {
        if (value)
            setenv(name_, value->c_str(), 1);
        else
            unsetenv(name_);
    }

private:
    const char* name_;
    std::optional<std::string> before_;
};
