#pragma once

#include "PaintList.h"

#include <QRegion>

/// The pixels that may look different in the picture of `after` than in that of `before`, and those that must
/// be painted with them since something shows them blurred.
[[nodiscard]] QRegion damageBetween(const PaintList& before, const PaintList& after);
