#pragma once

#include "Foundation/PropertyList.h"

#include <random>

/// Makes property lists of all kinds of value from a seed, the awkward ones of each kind often.
class RandomPropertyList {
public:
    explicit RandomPropertyList(std::uint64_t seed) : random_(seed) {}

    [[nodiscard]] PropertyList next() { return value(4); }

    /// \param depth how many arrays and dictionaries may be within each other
    [[nodiscard]] PropertyList value(unsigned depth);

    [[nodiscard]] std::string text();

private:
    [[nodiscard]] std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

    [[nodiscard]] PropertyList integer();
    [[nodiscard]] double real();
    [[nodiscard]] NSData data();
    [[nodiscard]] PropertyList::Array array(unsigned depth);
    [[nodiscard]] PropertyList::Dictionary dictionary(unsigned depth);

    std::mt19937_64 random_;
};
