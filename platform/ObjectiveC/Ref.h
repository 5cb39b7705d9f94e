#pragma once

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <utility>

class NSObject;

/// Owed by each platform: one more, or one less, owner of `object`. Thread-safe. The release of the last
/// owner destroys the object before it returns. Only `Ref` calls these two.
void retainObject(NSObject& object) noexcept;
void releaseObject(NSObject& object) noexcept;

/// One owner of a reference-counted object, or of none. `T` is `NSObject` or a class derived from it.
///
/// A Ref is made by `make` (a new object), by `retain` (one more owner of an object that somebody else owns)
/// or by `adopt` (takes over an ownership that already exists). When a new value replaces an old one, the Ref
/// already holds the new value while the old one is released, so a destructor that looks back sees the new.
template <class T>
class [[nodiscard]] Ref {
public:
    constexpr Ref() noexcept = default;

    constexpr Ref(std::nullptr_t) noexcept {}

    Ref(const Ref& other) noexcept : object_(other.object_) { retainHeld(); }

    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    template <std::convertible_to<T*> U>
        requires std::is_pointer_v<U>
    Ref(U) = delete; // say `retain` or `adopt`: they differ

    template <class U>
        requires std::convertible_to<U*, T*>
    Ref(const Ref<U>& other) noexcept : object_(other.get()) {
        retainHeld();
    }

    template <class U>
        requires std::convertible_to<U*, T*>
    Ref(Ref<U>&& other) noexcept : object_(other.leak()) {}

    ~Ref() {
        if (object_ != nullptr)
            releaseObject(*object_);
    }

    Ref& operator=(const Ref& other) noexcept {
        Ref(other).swap(*this);
        return *this;
    }

    Ref& operator=(Ref&& other) noexcept {
        Ref(std::move(other)).swap(*this);
        return *this;
    }

    [[nodiscard]] T* get() const noexcept { return object_; }

    [[nodiscard]] T* operator->() const noexcept { return object_; }

    // The analyser takes every object for one whose initialiser has failed.
    // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn)
    [[nodiscard]] T& operator*() const noexcept { return *object_; }

    [[nodiscard]] explicit operator bool() const noexcept { return object_ != nullptr; }

    void swap(Ref& other) noexcept { std::swap(object_, other.object_); }

    /// Gives the ownership away: the caller owes one release.
    [[nodiscard]] T* leak() noexcept { return std::exchange(object_, nullptr); }

private:
    template <class U>
    friend Ref<U> adopt(U* object) noexcept;

    void retainHeld() const noexcept {
        if (object_ != nullptr)
            retainObject(*object_);
    }

    T* object_ = nullptr;
};

/// Takes over an ownership that the caller holds; the count stays as it is. Null gives an empty Ref.
template <class T>
Ref<T> adopt(T* object) noexcept {
    Ref<T> result;
    result.object_ = object;
    return result;
}

/// One more owner of an object that lives. Null gives an empty Ref.
template <class T>
Ref<T> retain(T* object) noexcept {
    if (object != nullptr)
        retainObject(*object);
    return adopt(object);
}

/// Two Refs are equal when they hold the same object.
template <class T, class U>
bool operator==(const Ref<T>& left, const Ref<U>& right) noexcept {
    return left.get() == right.get();
}

template <class T>
bool operator==(const Ref<T>& left, std::nullptr_t) noexcept {
    return left.get() == nullptr;
}

/// The object seen as a `T`, or an empty Ref when it is none.
template <class T, class U>
Ref<T> dynamicCast(const Ref<U>& object) noexcept {
    return retain(dynamic_cast<T*>(object.get()));
}
