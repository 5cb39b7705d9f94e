#pragma once

#include "ImportLists.h"

/// What bundles whose tests start threads import for that. The pane starts none.
[[nodiscard]] Imports threadFunctions();
