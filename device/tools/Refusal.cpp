#include "Refusal.h"

#include <array>
#include <charconv>

std::string hexadecimal(std::uint64_t number) {
    std::array<char, 16> digits{};
    char* const end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
    return "0x" + std::string(digits.begin(), end);
}
