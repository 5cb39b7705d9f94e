#pragma once

#include "Foundation/NSIndexPath.h"
#include "Runtime.h"

/// The way of rows' places to Objective-C and back.

/// Autoreleased.
[[nodiscard]] id indexPathObject(NSIndexPath path);
[[nodiscard]] NSIndexPath indexPathOf(id path);
