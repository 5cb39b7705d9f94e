#pragma once

#include "ObjectiveC/NSObject.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// What a parameter or result of a method is, in the terms that a platform needs to carry it.
enum class MessageType : char {
    Nothing, ///< no result
    Boolean, ///< `BOOL`
    Integer, ///< `NSInteger`
    Real,    ///< `double`
    Text,    ///< a string object, or null
    Value,   ///< a property-list object, or null
    Object,  ///< any other object, or null
    Objects, ///< an array of such objects
    Block,   ///< a block without parameters and result, or null
};

/// A method that can be called by its selector's text. Made by `method`; lives as long as the program's code.
struct Method {
    std::string_view selector;
    MessageType result;
    std::span<const MessageType> parameters;
    /// Calls the method. `receiver` is an instance of the class that lists the method.
    MessageValue (*invoke)(NSObject& receiver, std::span<const MessageValue> arguments);
};

/// A selector's text as a template argument.
template <std::size_t size>
struct SelectorText {
    // NOLINTNEXTLINE(*-avoid-c-arrays): that is what a literal is
    consteval SelectorText(const char (&literal)[size]) { std::copy_n(literal, size, text.begin()); }

    [[nodiscard]] consteval std::size_t parameterCount() const {
        return static_cast<std::size_t>(std::ranges::count(text, ':'));
    }

    [[nodiscard]] constexpr std::string_view view() const { return {text.data(), size - 1}; }

    std::array<char, size> text{};
};

/// How a C++ type travels in a message. Specialised for every type that a method may take or answer with;
/// any other type does not compile.
template <class T>
struct MessageTraits;

template <>
struct MessageTraits<bool> {
    static constexpr auto type = MessageType::Boolean;

    static bool unpack(const MessageValue& value);

    static MessageValue pack(bool value);
};

template <std::signed_integral T>
struct MessageTraits<T> {
    static constexpr auto type = MessageType::Integer;

    static T unpack(const MessageValue& value) {
        const auto* list = std::get_if<PropertyList>(&value);
        return list != nullptr ? static_cast<T>(list->integerValue()) : T{};
    }

    static MessageValue pack(T value) { return PropertyList(value); }
};

template <>
struct MessageTraits<double> {
    static constexpr auto type = MessageType::Real;

    static double unpack(const MessageValue& value);

    static MessageValue pack(double value);
};

template <>
struct MessageTraits<std::optional<std::string>> {
    static constexpr auto type = MessageType::Text;

    static std::optional<std::string> unpack(const MessageValue& value);

    static MessageValue pack(const std::optional<std::string>& value);
};

template <>
struct MessageTraits<std::optional<PropertyList>> {
    static constexpr auto type = MessageType::Value;

    static std::optional<PropertyList> unpack(const MessageValue& value);

    static MessageValue pack(const std::optional<PropertyList>& value);
};

template <std::derived_from<NSObject> T>
struct MessageTraits<Ref<T>> {
    static constexpr auto type = MessageType::Object;

    static Ref<T> unpack(const MessageValue& value) {
        const auto* object = std::get_if<Ref<NSObject>>(&value);
        return object != nullptr ? dynamicCast<T>(*object) : nullptr;
    }

    static MessageValue pack(const Ref<T>& value) {
        return value ? MessageValue(Ref<NSObject>(value)) : MessageValue();
    }
};

template <std::derived_from<NSObject> T>
struct MessageTraits<std::vector<Ref<T>>> {
    static constexpr auto type = MessageType::Objects;

    /// What is not a `T` is left out.
    static std::vector<Ref<T>> unpack(const MessageValue& value) {
        std::vector<Ref<T>> objects;
        if (const auto* list = std::get_if<std::vector<Ref<NSObject>>>(&value)) {
            for (const auto& object : *list) {
                if (auto typed = dynamicCast<T>(object))
                    objects.push_back(std::move(typed));
            }
        }
        return objects;
    }

    static MessageValue pack(const std::vector<Ref<T>>& value) {
        return std::vector<Ref<NSObject>>(value.begin(), value.end());
    }
};

template <>
struct MessageTraits<std::optional<std::vector<std::string>>> {
    static constexpr auto type = MessageType::Value;

    /// What is no text is left out.
    static std::optional<std::vector<std::string>> unpack(const MessageValue& value);

    static MessageValue pack(const std::optional<std::vector<std::string>>& value);
};

template <>
struct MessageTraits<std::function<void()>> {
    static constexpr auto type = MessageType::Block;

    static std::function<void()> unpack(const MessageValue& value);

    static MessageValue pack(std::function<void()> value);
};

/// How `method` calls one member function of `T`; use `method` instead.
template <auto member, class T, class Result, class... Parameters>
struct MemberCall {
    static constexpr auto result = [] {
        if constexpr (std::is_void_v<Result>)
            return MessageType::Nothing;
        else
            return MessageTraits<std::remove_cvref_t<Result>>::type;
    }();
    static constexpr std::array<MessageType, sizeof...(Parameters)> parameters{
        MessageTraits<std::remove_cvref_t<Parameters>>::type...};

    static MessageValue invoke(NSObject& receiver, std::span<const MessageValue> arguments) {
        return invokeWith(static_cast<T&>(receiver), arguments, std::index_sequence_for<Parameters...>());
    }

private:
    template <std::size_t... index>
    static MessageValue invokeWith(T& receiver, [[maybe_unused]] std::span<const MessageValue> arguments,
                                   std::index_sequence<index...> /*which*/) {
        if constexpr (std::is_void_v<Result>) {
            (receiver.*member)(argumentAt<Parameters>(arguments, index)...);
            return {};
        } else {
            return MessageTraits<std::remove_cvref_t<Result>>::pack(
                (receiver.*member)(argumentAt<Parameters>(arguments, index)...));
        }
    }

    template <class Parameter>
    static auto argumentAt(std::span<const MessageValue> arguments, std::size_t index) {
        using Carrier = MessageTraits<std::remove_cvref_t<Parameter>>;
        return index < arguments.size() ? Carrier::unpack(arguments[index])
                                        : std::remove_cvref_t<Parameter>();
    }
};

/// Takes a member function's type apart.
template <auto member, class Signature>
struct MemberCallOf;

template <auto member, class T, class Result, class... Parameters>
struct MemberCallOf<member, Result (T::*)(Parameters...)> : MemberCall<member, T, Result, Parameters...> {};

template <auto member, class T, class Result, class... Parameters>
struct MemberCallOf<member, Result (T::*)(Parameters...) const>
    : MemberCall<member, T, Result, Parameters...> {};

/// The method behind a selector: `method<"switchChanged:", &cxRootListController::switchChanged>()`.
/// Does not compile when the selector's colons and the function's parameters differ in number.
template <SelectorText selector, auto member>
[[nodiscard]] consteval Method method() {
    using Call = MemberCallOf<member, decltype(member)>;
    static_assert(selector.parameterCount() == Call::parameters.size(),
                  "the selector has another number of colons than the member function has parameters");
    return {selector.view(), Call::result, Call::parameters, &Call::invoke};
}
