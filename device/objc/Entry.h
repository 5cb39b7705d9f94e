#pragma once

#include "Bridge.h"

#include <type_traits>
#include <utility>

/// One parameter of a C++ function that is called from Objective-C, for as long as the call lasts.
template <class P>
class Incoming {
public:
    using Value = std::remove_cvref_t<P>;
    using Raw = RawOf<Value>;

    explicit Incoming(Raw raw) : value_(fromRaw<Value>(raw)) {}

    [[nodiscard]] bool isMissing() const { return false; }

    [[nodiscard]] const Value& get() const { return value_; }

private:
    Value value_;
};

/// An object that the function takes by reference: without one, or with one of another class, the function
/// cannot be called.
template <std::derived_from<NSObject> T>
class Incoming<T&> {
public:
    using Raw = id;

    explicit Incoming(id raw) : object_(instanceAs<T>(raw)) {}

    [[nodiscard]] bool isMissing() const { return !object_; }

    [[nodiscard]] T& get() const { return *object_; }

private:
    Ref<T> object_;
};

template <std::derived_from<NSObject> T>
class Incoming<T*> {
public:
    using Raw = id;

    explicit Incoming(id raw) : object_(instanceAs<T>(raw)) {}

    [[nodiscard]] bool isMissing() const { return false; }

    [[nodiscard]] T* get() const { return object_.get(); }

private:
    Ref<T> object_;
};

template <class P>
using RawParameter = Incoming<P>::Raw;

/// What Objective-C is answered with. An object outlives the value that it comes of, autoreleased.
template <class T>
RawOf<T> rawAnswer(const T& value) {
    if constexpr (std::is_same_v<RawOf<T>, id>)
        return objc_autorelease(objc_retain(toRaw(value)));
    else
        return toRaw(value);
}

/// Runs what was entered from outside within an autorelease pool. An object that it answers with outlives the
/// pool, autoreleased.
template <class Raw, class Body>
Raw withinPool(Body body) {
    if constexpr (std::is_same_v<Raw, id>) {
        id answer = nullptr;
        {
            const AutoreleasePool pool;
            answer = objc_retain(body());
        }
        return objc_autorelease(answer);
    } else {
        const AutoreleasePool pool;
        return body();
    }
}

/// Calls a C++ function from Objective-C. When an object is missing that it takes by reference, it is not
/// called, and the answer is nothing.
template <class R, class... P, class Function>
RawOf<std::remove_cvref_t<R>> callFromOutside(const Function& function, RawParameter<P>... arguments) {
    using Answer = std::remove_cvref_t<R>;
    const auto call = [&](const auto&... incoming) -> RawOf<Answer> {
        if ((incoming.isMissing() || ...))
            return RawOf<Answer>();
        if constexpr (std::is_void_v<R>)
            function(incoming.get()...);
        else
            return rawAnswer<Answer>(function(incoming.get()...));
    };
    return withinPool<RawOf<Answer>>([&] { return call(Incoming<P>(arguments)...); });
}
