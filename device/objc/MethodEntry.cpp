#include "MethodEntry.h"

#include "Entry.h"
#include "MessageValueObject.h"
#include "ObjectiveC/Class.h"

#include <array>
#include <variant>

namespace {

using RawArgument = std::variant<ObjcBool, std::int64_t, double, id>;

// Numbers that are passed otherwise than objects are, only where the pane has them: for each list of types
// there is a function.
constexpr std::size_t parametersAtMost = 4;
constexpr std::size_t parametersOfAnyTypeAtMost = 2;

MessageValue valueOf(const RawArgument& argument, MessageType type) {
    if (const auto* const boolean = std::get_if<ObjcBool>(&argument))
        return PropertyList(static_cast<bool>(*boolean));
    if (const auto* const integer = std::get_if<std::int64_t>(&argument))
        return PropertyList(*integer);
    if (const auto* const real = std::get_if<double>(&argument))
        return PropertyList(*real);
    return messageValueOf(std::get<id>(argument), type);
}

/// Calls the C++ member that the class table names. Nothing is called any more once the C++ half has ended.
MessageValue callMember(id self, SEL selector, std::span<const RawArgument> arguments) {
    const auto receiver = instanceAs<NSObject>(self);
    const auto* const method = receiver ? receiver->isa().instanceMethod(sel_getName(selector)) : nullptr;
    if (method == nullptr)
        return {};
    std::vector<MessageValue> values;
    values.reserve(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i)
        values.push_back(valueOf(arguments[i], method->parameters[i]));
    return method->invoke(*receiver, values);
}

template <class R>
R rawOf(const MessageValue& value) {
    if constexpr (std::is_same_v<R, id>)
        return messageObject(value);
    else if constexpr (std::is_same_v<R, ObjcBool>)
        return static_cast<ObjcBool>(MessageTraits<bool>::unpack(value));
    else if constexpr (!std::is_void_v<R>)
        return MessageTraits<R>::unpack(value);
}

template <class R>
[[gnu::noinline]] R answer(id self, SEL selector, std::span<const RawArgument> arguments) {
    return withinPool<R>([&] { return rawOf<R>(callMember(self, selector, arguments)); });
}

/// The function that Objective-C calls, of the exact type. Small, since there is one for every list of types.
template <class R, class... P>
R entry(id self, SEL selector, P... arguments) noexcept {
    const std::array<RawArgument, sizeof...(P)> raw{RawArgument(arguments)...};
    return answer<R>(self, selector, raw);
}

/// For an initialiser, which owns its receiver: that is what it answers with, or what its C++ half has become
/// the other half of, or it is released.
id initialise(id self, SEL selector, id argument) noexcept {
    const auto receiver = instanceAs<NSObject>(self);
    if (!receiver)
        return self;
    const std::array<RawArgument, 1> raw{RawArgument(argument)};
    const bool isReady = static_cast<bool>(answer<ObjcBool>(self, selector, raw));
    const id object = objectOf(*receiver);
    if (isReady)
        return object;
    objc_release(object);
    return nullptr;
}

bool isInitialiser(const Method& method) {
    return method.selector.starts_with("init") && method.result == MessageType::Boolean &&
           method.parameters.size() == 1;
}

// The types that a method has are put together one after the other: the result first, then the parameters.

template <class R, class... P>
IMP entryWith(std::span<const MessageType> further);

template <class R, class Number, class... P>
IMP entryWithNumber(std::span<const MessageType> further) {
    if constexpr (sizeof...(P) < parametersOfAnyTypeAtMost)
        return entryWith<R, P..., Number>(further);
    else
        return nullptr;
}

template <class R, class... P>
IMP entryWith(std::span<const MessageType> further) {
    if (further.empty())
        return reinterpret_cast<IMP>(&entry<R, P...>);
    if constexpr (sizeof...(P) < parametersAtMost) {
        const auto rest = further.subspan(1);
        switch (further.front()) {
        case MessageType::Boolean:
            return entryWithNumber<R, ObjcBool, P...>(rest);
        case MessageType::Integer:
            return entryWith<R, P..., std::int64_t>(rest);
        case MessageType::Real:
            return entryWithNumber<R, double, P...>(rest);
        default:
            return entryWith<R, P..., id>(rest);
        }
    }
    return nullptr;
}

std::string_view encodingOfType(MessageType type) {
    switch (type) {
    case MessageType::Nothing:
        return encodingOf<void>;
    case MessageType::Boolean:
        return encodingOf<ObjcBool>;
    case MessageType::Integer:
        return encodingOf<std::int64_t>;
    case MessageType::Real:
        return encodingOf<double>;
    case MessageType::Block:
        return encodingOf<BlockRef>;
    default:
        return encodingOf<id>;
    }
}

} // namespace

IMP methodEntry(const Method& method) {
    if (isInitialiser(method))
        return reinterpret_cast<IMP>(&initialise);
    switch (method.result) {
    case MessageType::Nothing:
        return entryWith<void>(method.parameters);
    case MessageType::Boolean:
        return entryWith<ObjcBool>(method.parameters);
    case MessageType::Integer:
        return entryWith<std::int64_t>(method.parameters);
    case MessageType::Real:
        return entryWith<double>(method.parameters);
    default:
        return entryWith<id>(method.parameters);
    }
}

std::string encodingOfMethod(const Method& method) {
    std::string types(isInitialiser(method) ? encodingOf<id> : encodingOfType(method.result));
    types += "@:";
    for (const auto parameter : method.parameters)
        types += encodingOfType(parameter);
    return types;
}
