#pragma once

#include "Message.h"

#include <type_traits>
#include <utility>

/// A method of the frameworks' classes that a class of ours may override, by overriding the function of the
/// contract that stands for it. Made by `overridable` and `initialiser`.
struct Overridable {
    const MessageRecord* message;
    IMP implementation; ///< calls the C++ function
};

/// The methods' implementations. Each calls the C++ function, virtually, of the receiver's C++ half.
template <MessageText message, auto member, class Signature = decltype(member)>
struct OverrideEntry;

template <MessageText message, auto member, class T, class R, class... P>
struct OverrideEntry<message, member, R (T::*)(P...)> {
    using Raw = RawOf<std::remove_cvref_t<R>>;
    using Sent = Message<message, Raw, RawParameter<P>...>;
    using InitialiserSent = Message<message, id, RawParameter<P>...>;

    static Raw call(id self, SEL selector, RawParameter<P>... arguments) noexcept {
        const auto instance = instanceAs<T>(self);
        if (!instance)
            return reinterpret_cast<decltype(&call)>(inheritedImplementation(self, selector))(self, selector,
                                                                                              arguments...);
        return callFromOutside<R, P...>(
            [&](auto&&... values) -> decltype(auto) {
                return ((*instance).*member)(std::forward<decltype(values)>(values)...);
            },
            arguments...);
    }

    /// For initialisers: they own their receiver, and answer with it, or with the object that the C++ half
    /// has become that of, or release it.
    static id initialise(id self, SEL selector, RawParameter<P>... arguments) noexcept {
        const auto instance = instanceAs<T>(self);
        if (!instance)
            return reinterpret_cast<decltype(&initialise)>(inheritedImplementation(self, selector))(
                self, selector, arguments...);
        const bool isReady = call(self, selector, arguments...);
        const id object = objectOf(*instance);
        if (isReady)
            return object;
        objc_release(object);
        return nullptr;
    }
};

template <MessageText message, auto member, class T, class R, class... P>
struct OverrideEntry<message, member, R (T::*)(P...) const> : OverrideEntry<message, member, R (T::*)(P...)> {
};

template <MessageText message, auto member>
[[nodiscard]] Overridable overridable() {
    using Entry = OverrideEntry<message, member>;
    return {&Entry::Sent::record, reinterpret_cast<IMP>(&Entry::call)};
}

/// For a function that readies a new object and answers whether it did.
template <MessageText message, auto member>
[[nodiscard]] Overridable initialiser() {
    using Entry = OverrideEntry<message, member>;
    return {&Entry::InitialiserSent::record, reinterpret_cast<IMP>(&Entry::initialise)};
}
