#pragma once

#include <cstring>
#include <span>

/// What a symbol that the bundle imports is bound to.
struct Import {
    const char* symbol;
    const void* address;
};

/// The address of a function, as the linker fills it in.
template <class Function>
const void* code(Function* function) {
    return reinterpret_cast<const void*>(function);
}

/// The imports of a list, none of which stands in another.
using Imports = std::span<const Import>;

[[nodiscard]] Imports blockImports();
[[nodiscard]] Imports cLibraryImports();
[[nodiscard]] Imports cxxLibraryImports();
[[nodiscard]] Imports lockImports();
[[nodiscard]] Imports runtimeImports();
[[nodiscard]] Imports stringImports();
[[nodiscard]] Imports systemImports();
