#pragma once

#include "ImportLists.h"

/// What bundles of tests import from the program that runs them, and others do not.
[[nodiscard]] Imports testFunctions();
