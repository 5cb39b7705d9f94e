#pragma once

#include "PointerSignature.h"

#include <cstdint>

/// Pointers between the bundle's code, which for arm64e signs what it hands out and expects what it is handed
/// to be signed, and this program's, which knows nothing of that. For arm64 they are left as they are.
class CodePointers {
public:
    /// Whether the bundle's code is for arm64e. Said once, before it is loaded.
    static void areSigned(bool signedByBundle);

    /// The pointer without its signature; ends the program, naming what it is, when that is not the right
    /// one.
    [[nodiscard]] static std::uint64_t authenticated(std::uint64_t pointer, SigningKey key,
                                                     std::uint64_t modifier, const char* what);

    /// One that stands at a place of memory, and is signed for that.
    [[nodiscard]] static std::uint64_t authenticatedAt(const std::uint64_t& place, SigningKey key,
                                                       std::uint16_t diversity, const char* what);

    [[nodiscard]] static std::uint64_t signedFor(std::uint64_t pointer, SigningKey key,
                                                 std::uint64_t modifier);

    /// A pointer without its signature, whatever that is.
    [[nodiscard]] static std::uint64_t stripped(std::uint64_t pointer);

    /// A function as C passes it: signed with the first key, without a modifier.
    template <class Function>
    [[nodiscard]] static Function* authenticated(Function* function, const char* what) {
        return reinterpret_cast<Function*>(
            authenticated(reinterpret_cast<std::uint64_t>(function), SigningKey::IA, 0, what));
    }

    template <class Function>
    [[nodiscard]] static Function* signedFunction(Function* function) {
        return reinterpret_cast<Function*>(
            signedFor(reinterpret_cast<std::uint64_t>(function), SigningKey::IA, 0));
    }
};
