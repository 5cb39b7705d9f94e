#pragma once

#include "UIKit/UIView.h"

/// Lays a blurred backdrop of that style beneath everything in a sheet's view. Nothing happens where the
/// frameworks make none.
void addBackdrop(UIView& sheet, int style);
