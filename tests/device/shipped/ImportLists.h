#pragma once

#include "Import.h"

#include <span>

/// The imports of a list, none of which stands in another.
using Imports = std::span<const Import>;

[[nodiscard]] Imports blockImports();
[[nodiscard]] Imports cLibraryImports();
[[nodiscard]] Imports cxxLibraryImports();
[[nodiscard]] Imports lockImports();
[[nodiscard]] Imports runtimeImports();
[[nodiscard]] Imports stringImports();
[[nodiscard]] Imports systemImports();
