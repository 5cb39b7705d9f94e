#pragma once

#include "Block.h"
#include "Encoding.h"
#include "MessageRecord.h"
#include "MessageText.h"
#include "PublishedClasses.h"

#include <type_traits>

/// The record of one message with one set of types. `R` and `P` are the types that cross the border.
template <MessageText message, class R, class... P>
struct Message {
    static_assert(message.parameterCount() == sizeof...(P),
                  "the selector has another number of colons than there are arguments");

    static inline const MessageRecord record{message.text.data(), message.selector.data(),
                                             methodEncoding<R, P...>.data()};

    /// Also before the record has been constructed, while the program is being loaded.
    [[nodiscard]] static SEL selector() {
        const SEL known = record.selector();
        return known != nullptr ? known : sel_registerName(message.selector.data());
    }
};

/// Calls an implementation of the message.
template <MessageText message, class Result, class... Arguments>
Result callImplementation(IMP implementation, id receiver, const Arguments&... arguments) {
    using Sent = Message<message, RawOf<Result>, RawOf<Arguments>...>;
    auto* const call = reinterpret_cast<RawOf<Result> (*)(id, SEL, RawOf<Arguments>...)>(implementation);
    if constexpr (std::is_void_v<Result>)
        call(receiver, Sent::selector(), static_cast<RawOf<Arguments>>(toRaw(arguments))...);
    else
        return fromRaw<Result>(
            call(receiver, Sent::selector(), static_cast<RawOf<Arguments>>(toRaw(arguments))...));
}

/// Sends a message: `send<"-[UIView setFrame:]", void>(view, frame)`. The types of the arguments are those
/// that the method is called with, so a constant needs the exact one. Null answers with nothing.
/// \tparam Result the type to answer with: one that `Bridge` knows
template <MessageText message, class Result, class... Arguments>
Result send(id receiver, const Arguments&... arguments) {
    if (receiver == nullptr)
        return Result();
    using Sent = Message<message, RawOf<Result>, RawOf<Arguments>...>;
    return callImplementation<message, Result>(messageFunction(receiver, Sent::selector()), receiver,
                                               arguments...);
}

template <MessageText message, class Result, class... Arguments>
Result send(const NSObject& receiver, const Arguments&... arguments) {
    return send<message, Result>(objectOf(receiver), arguments...);
}

/// Sends a message to the class that declares it: `sendToClass<"+[UIColor clearColor]", Ref<UIColor>>()`.
template <MessageText message, class Result, class... Arguments>
    requires(message.isForClass())
Result sendToClass(const Arguments&... arguments) {
    return send<message, Result>(classObject(objc_getClass(message.className.data())), arguments...);
}

/// Calls what the frameworks do for a message: for an object of a class of ours what its class inherits from
/// them, for any other what it does by itself. Stands behind every function of the contract that may be
/// overridden.
template <MessageText message, class Result, class... Arguments>
Result sendToBase(const NSObject& receiver, const Arguments&... arguments) {
    using Sent = Message<message, RawOf<Result>, RawOf<Arguments>...>;
    const id object = objectOf(receiver);
    return callImplementation<message, Result>(inheritedImplementation(object, Sent::selector()), object,
                                               arguments...);
}

/// Readies a new object with an initialiser of the frameworks. When that answers with another object,
/// `created` becomes the other half of that one. \returns false when it refused; the caller still owns the
/// object then
template <MessageText message, class... Arguments>
[[nodiscard]] bool initialise(NSObject& created, const Arguments&... arguments) {
    auto kept = retain(&created); // since an initialiser that refuses releases it
    const id answer = sendToBase<message, id>(created, arguments...);
    if (answer != nullptr && acceptInitialised(created, answer))
        return true;
    static_cast<void>(kept.leak()); // in the place of the ownership that was released
    return false;
}

/// A new object of the class that declares the initialiser; empty when it refused.
template <MessageText message, class T, class... Arguments>
[[nodiscard]] Ref<T> makeObject(const Arguments&... arguments) {
    const id allocated = send<"+[NSObject alloc]", id>(classObject(objc_getClass(message.className.data())));
    return adoptInstance<T>(send<message, id>(allocated, arguments...));
}
