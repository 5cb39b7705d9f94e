#pragma once

#include <QPainterPath>

/// The shape with a margin around it and within its holes, corners rounded.
[[nodiscard]] QPainterPath grown(const QPainterPath& shape, double margin);

/// The shape, as large as it is, with a margin cut off around each of its holes.
[[nodiscard]] QPainterPath withWiderHoles(const QPainterPath& shape, double margin);
