#pragma once

#include "Foundation/PropertyList.h"

/// Whether two values are the same bit for bit: other than `==` it tells 0.0 from -0.0, and finds a NaN equal
/// to itself.
[[nodiscard]] bool isExactlyEqual(const PropertyList& left, const PropertyList& right);
