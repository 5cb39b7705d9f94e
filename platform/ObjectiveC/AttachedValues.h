#pragma once

#include "ObjectiveC/NSObject.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// A value kept on an object under a text key, beside what its class declares. Nothing, an object, a text or
/// a block.
using AttachedValue = std::variant<std::monostate, Ref<NSObject>, std::string, std::function<void()>>;

/// How the owner keeps the value. The numbers are the Objective-C runtime's.
enum class Retention : int {
    RetainNonatomic = 01, ///< keeps the object alive; main thread only
    CopyNonatomic = 03,   ///< keeps a copy; texts and blocks only, since no object of ours can be copied
    Retain = 01401,       ///< keeps the object alive; may be read and replaced from any thread
};

/// Attaches `value` to `owner` under `key`, in place of what was there; `std::monostate` only takes that
/// away. The old value is released after the new one is in place. What is still attached is released at the
/// end of the owner, after its destructors. An object with `CopyNonatomic` is refused with a log line.
void setAttachedValue(NSObject& owner, std::string_view key, AttachedValue value, Retention retention);

/// What is attached to `owner` under `key`, or `std::monostate`.
[[nodiscard]] AttachedValue attachedValue(const NSObject& owner, std::string_view key);

/// The same for one kind of value: nothing when there is none, or one of another kind.
/// `T` is `std::string`, `std::function<void()>`, or `Ref` of a class.
template <class T>
[[nodiscard]] std::optional<T> attachedValueOf(const NSObject& owner, std::string_view key) {
    auto value = attachedValue(owner, key);
    if (auto* found = std::get_if<T>(&value))
        return std::move(*found);
    return std::nullopt;
}
