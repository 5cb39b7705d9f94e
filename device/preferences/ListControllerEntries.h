#pragma once

#include "Overridable.h"

/// What a page of ours answers to the Preferences framework in another way than by the C++ function alone.

/// The rows. While they are those that the framework keeps for the page, the very array that it keeps: it
/// changes that one when rows come and go.
[[nodiscard]] Overridable specifiersOverridable();

/// The bundle that this code is in. The framework asks for it to find lists and texts, and could not tell by
/// the class alone, which is made when the code is loaded.
[[nodiscard]] Overridable bundleOverridable();

/// Where the framework keeps the rows of a page; null when it has no such place.
[[nodiscard]] id* cachedSpecifiersOf(id controller);
