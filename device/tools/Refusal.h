#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

/// What a tool met and will not go on with, said so that a person can act on it.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A number as addresses and codes are written: 0x4000.
[[nodiscard]] std::string hexadecimal(std::uint64_t number);
