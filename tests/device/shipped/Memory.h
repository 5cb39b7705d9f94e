#pragma once

#include <cstddef>

/// How many blocks of C++ are in use, by this program's code and by the bundle's.
[[nodiscard]] std::size_t blocksInUse();
