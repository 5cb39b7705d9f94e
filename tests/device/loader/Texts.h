#pragma once

#include <stddef.h>

[[nodiscard]] bool areEqual(const char* left, const char* right);

/// Whether they are equal as far as `longest` goes.
[[nodiscard]] bool haveEqualStarts(const char* left, const char* right, size_t longest);
