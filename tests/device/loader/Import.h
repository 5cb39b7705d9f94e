#pragma once

/// What a symbol that a bundle imports is bound to.
struct Import {
    const char* symbol;
    const void* address;
};

/// The address of a function, as the linker fills it in.
template <class Function>
const void* code(Function* function) {
    return reinterpret_cast<const void*>(function);
}
