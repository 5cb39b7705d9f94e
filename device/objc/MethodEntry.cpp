#include "MethodEntry.h"

#include "Entry.h"
#include "MessageValueObject.h"
#include "ObjectiveC/Class.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr std::size_t parametersAtMost = 4;

/// The arguments of a call as they come in: numbers and objects in one kind of registers, reals in another,
/// each in their order.
struct Registers {
    std::array<id, parametersAtMost> general; ///< a number is what its bits are
    std::array<double, parametersAtMost> floating;
};

/// Hands the arguments of a call out, in their order.
class Arguments {
public:
    explicit Arguments(const Registers& registers) : registers_(registers) {}

    [[nodiscard]] MessageValue next(MessageType type) {
        if (type == MessageType::Real)
            return PropertyList(registers_.floating[usedFloating_++]);
        const id object = registers_.general[usedGeneral_++];
        const auto number = reinterpret_cast<std::int64_t>(object);
        if (type == MessageType::Boolean)
            return PropertyList(static_cast<std::uint8_t>(number) != 0); // what is above it is anything
        if (type == MessageType::Integer)
            return PropertyList(number);
        return messageValueOf(object, type);
    }

private:
    const Registers& registers_;
    std::size_t usedGeneral_ = 0;
    std::size_t usedFloating_ = 0;
};

/// Calls the C++ member that the class table names. Nothing is called any more once the C++ half has ended.
MessageValue callMember(id self, SEL selector, const Registers& registers) {
    const auto receiver = instanceAs<NSObject>(self);
    const auto* const method = receiver ? receiver->isa().instanceMethod(sel_getName(selector)) : nullptr;
    if (method == nullptr)
        return {};
    std::vector<MessageValue> values;
    values.reserve(method->parameters.size());
    Arguments arguments(registers);
    for (const auto type : method->parameters)
        values.push_back(arguments.next(type));
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
R answer(id self, SEL selector, const Registers& registers) {
    return withinPool<R>([&] { return rawOf<R>(callMember(self, selector, registers)); });
}

/// The function that Objective-C calls, for methods of every list of parameters: it is called as one of the
/// method's own type is, and finds the arguments in the registers that they are passed in. Those that the
/// method has no arguments for hold anything.
template <class R>
R entry(id self, SEL selector, id first, id second, id third, id fourth, double firstReal, double secondReal,
        double thirdReal, double fourthReal) noexcept {
    return answer<R>(self, selector,
                     {.general = {first, second, third, fourth},
                      .floating = {firstReal, secondReal, thirdReal, fourthReal}});
}

/// For an initialiser, which owns its receiver: that is what it answers with, or what its C++ half has become
/// the other half of, or it is released.
id initialise(id self, SEL selector, id argument) noexcept {
    const auto receiver = instanceAs<NSObject>(self);
    if (!receiver)
        return self;
    const bool isReady =
        static_cast<bool>(answer<ObjcBool>(self, selector, {.general = {argument}, .floating = {}}));
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
    if (method.parameters.size() > parametersAtMost)
        return nullptr;
    if (isInitialiser(method))
        return reinterpret_cast<IMP>(&initialise);
    switch (method.result) {
    case MessageType::Nothing:
        return reinterpret_cast<IMP>(&entry<void>);
    case MessageType::Boolean:
        return reinterpret_cast<IMP>(&entry<ObjcBool>);
    case MessageType::Integer:
        return reinterpret_cast<IMP>(&entry<std::int64_t>);
    case MessageType::Real:
        return reinterpret_cast<IMP>(&entry<double>);
    default:
        return reinterpret_cast<IMP>(&entry<id>);
    }
}

std::string encodingOfMethod(const Method& method) {
    std::string types(isInitialiser(method) ? encodingOf<id> : encodingOfType(method.result));
    types += "@:";
    for (const auto parameter : method.parameters)
        types += encodingOfType(parameter);
    return types;
}
