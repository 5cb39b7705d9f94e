#pragma once

#include "UIKit/UIControl.h"
#include "specifiers/DesktopSpecifier.h"

/// Brings a row's control in line with the row: switched on or off as the row is, and called by the row's
/// label, or by its identifier where there is none.
void adoptRow(UIControl& control, const DesktopSpecifier& row);
