#pragma once

#include "Collections.h"
#include "Encoding.h"
#include "Foundation/NSIndexPath.h"
#include "Foundation/PropertyList.h"
#include "IndexPathObject.h"
#include "Instances.h"
#include "PropertyListObject.h"
#include "Text.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// How a C++ type crosses the border: the type that Objective-C sees, and the way there and back. What comes
/// out as an object is autoreleased, or lives as long as the value that it is the other half of. Types
/// without a `Bridge` do not compile; `int` has none, since the frameworks hardly use it and a constant would
/// be one by accident.
template <class T>
struct Bridge;

/// Types that are the same on both sides.
template <class T>
concept SameOnBothSides =
    std::same_as<T, id> || std::same_as<T, objc_class*> || std::same_as<T, SEL> || std::same_as<T, void*> ||
    std::same_as<T, const void*> || std::same_as<T, const char*> || std::same_as<T, id*> ||
    std::same_as<T, std::int64_t> || std::same_as<T, std::uint64_t> || std::same_as<T, std::uint32_t> ||
    std::same_as<T, std::uint32_t*> || std::same_as<T, float> || std::same_as<T, double> ||
    std::same_as<T, CGPoint> || std::same_as<T, CGSize> || std::same_as<T, CGRect> ||
    std::same_as<T, UIEdgeInsets>;

template <SameOnBothSides T>
struct Bridge<T> {
    static T toRaw(const T& value) { return value; }

    static T fromRaw(T raw) { return raw; }
};

template <>
struct Bridge<bool> {
    static ObjcBool toRaw(bool value) { return static_cast<ObjcBool>(value); }

    static bool fromRaw(ObjcBool raw) { return static_cast<bool>(raw); }
};

/// The frameworks' enumerations are `NSInteger` or `NSUInteger`, whatever the contract's are kept in.
template <class T>
    requires std::is_enum_v<T>
struct Bridge<T> {
    using Raw = std::conditional_t<std::is_signed_v<std::underlying_type_t<T>>, std::int64_t, std::uint64_t>;

    static Raw toRaw(T value) { return static_cast<Raw>(value); }

    static T fromRaw(Raw raw) { return static_cast<T>(raw); }
};

template <>
struct Bridge<std::string_view> {
    static id toRaw(std::string_view text) { return textObject(text); }
};

template <>
struct Bridge<std::string> {
    static id toRaw(const std::string& text) { return textObject(text); }

    static std::string fromRaw(id raw) { return textOf(raw); }
};

template <>
struct Bridge<std::optional<std::string>> {
    static id toRaw(const std::optional<std::string>& text) { return text ? textObject(*text) : nullptr; }

    static std::optional<std::string> fromRaw(id raw) { return textIfAny(raw); }
};

template <>
struct Bridge<PropertyList> {
    static id toRaw(const PropertyList& value) { return propertyListObject(value); }
};

template <>
struct Bridge<std::optional<PropertyList>> {
    static id toRaw(const std::optional<PropertyList>& value) {
        return value ? propertyListObject(*value) : nullptr;
    }

    static std::optional<PropertyList> fromRaw(id raw) { return propertyListOf(raw); }
};

template <>
struct Bridge<NSIndexPath> {
    static id toRaw(NSIndexPath path) { return indexPathObject(path); }

    static NSIndexPath fromRaw(id raw) { return indexPathOf(raw); }
};

template <std::derived_from<NSObject> T>
struct Bridge<T> {
    static id toRaw(const T& object) { return objectOf(object); }
};

template <class T>
    requires(!SameOnBothSides<T*> && std::derived_from<T, NSObject>)
struct Bridge<T*> {
    static id toRaw(const T* object) { return objectOf(object); }
};

template <std::derived_from<NSObject> T>
struct Bridge<Ref<T>> {
    static id toRaw(const Ref<T>& object) { return objectOf(object.get()); }

    static Ref<T> fromRaw(id raw) { return instanceAs<T>(raw); }
};

template <std::derived_from<NSObject> T>
struct Bridge<std::vector<Ref<T>>> {
    static id toRaw(const std::vector<Ref<T>>& objects) {
        return arrayOf(objects, [](const Ref<T>& object) { return objectOf(object.get()); });
    }

    /// What is not a `T` is left out.
    static std::vector<Ref<T>> fromRaw(id raw) {
        std::vector<Ref<T>> objects;
        for (std::uint64_t i = 0; i < countOf(raw); ++i) {
            if (auto object = instanceAs<T>(objectAt(raw, i)))
                objects.push_back(std::move(object));
        }
        return objects;
    }
};

/// The type that stands for `T` on the other side.
template <class T>
struct RawType {
    using Type = decltype(Bridge<T>::toRaw(std::declval<const T&>()));
};

template <>
struct RawType<void> {
    using Type = void;
};

template <class T>
using RawOf = RawType<T>::Type;

template <class T>
decltype(auto) toRaw(const T& value) {
    return Bridge<T>::toRaw(value);
}

template <class T>
T fromRaw(RawOf<T> raw) {
    return Bridge<T>::fromRaw(raw);
}
