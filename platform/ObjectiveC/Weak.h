#pragma once

#include "ObjectiveC/Ref.h"

/// Where a platform keeps one weak reference. Its address matters to the platform, so it is moved and copied
/// with the functions below only. An empty slot holds null.
struct WeakSlot {
    void* reference = nullptr;
};

/// Owed by each platform, all thread-safe against the end of the object:
/// fills an empty slot with a reference to `object` (null leaves it empty);
void initWeakSlot(WeakSlot& slot, NSObject* object) noexcept;
/// answers the object with one more owner, which the caller owes a release; null once its end has begun;
[[nodiscard]] NSObject* loadWeakSlotRetained(const WeakSlot& slot) noexcept;
/// fills the empty slot `to` with what `from` refers to;
void copyWeakSlot(WeakSlot& to, const WeakSlot& from) noexcept;
/// the same, and empties `from`;
void moveWeakSlot(WeakSlot& to, WeakSlot& from) noexcept;
/// empties the slot.
void destroyWeakSlot(WeakSlot& slot) noexcept;

/// Watches an object without keeping it alive. Reads null as soon as the object's end has begun, in the
/// object's own destructor too.
template <class T>
class Weak {
public:
    Weak() noexcept = default;

    Weak(const Ref<T>& object) noexcept { initWeakSlot(slot_, object.get()); }

    explicit Weak(T* object) noexcept { initWeakSlot(slot_, object); }

    Weak(const Weak& other) noexcept { copyWeakSlot(slot_, other.slot_); }

    Weak(Weak&& other) noexcept { moveWeakSlot(slot_, other.slot_); }

    ~Weak() { destroyWeakSlot(slot_); }

    Weak& operator=(const Weak& other) noexcept {
        if (this != &other) {
            destroyWeakSlot(slot_);
            copyWeakSlot(slot_, other.slot_);
        }
        return *this;
    }

    Weak& operator=(Weak&& other) noexcept {
        if (this != &other) {
            destroyWeakSlot(slot_);
            moveWeakSlot(slot_, other.slot_);
        }
        return *this;
    }

    /// The object, kept alive for as long as the result is held; empty once the object is gone.
    [[nodiscard]] Ref<T> strong() const noexcept {
        return adopt(static_cast<T*>(loadWeakSlotRetained(slot_)));
    }

private:
    WeakSlot slot_;
};
