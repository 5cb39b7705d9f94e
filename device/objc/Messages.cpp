#include "Foundation/NSLog.h"
#include "Message.h"
#include "MessageValueObject.h"
#include "ObjectiveC/NSObject.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <span>

// Messages that are sent by their selector's text go to the Objective-C object, which may answer selectors
// that C++ knows nothing of.

namespace {

constexpr std::uint64_t implicitArguments = 2; // the receiver and the selector

/// One argument or result in memory, at most as large as a pointer or a number.
class Cell {
public:
    template <class T>
    void set(T value) {
        std::memcpy(bytes_.data(), static_cast<const void*>(&value), sizeof(T));
    }

    template <class T>
    [[nodiscard]] T get() const {
        T value{};
        std::memcpy(static_cast<void*>(&value), bytes_.data(), sizeof(T));
        return value;
    }

    [[nodiscard]] void* address() { return bytes_.data(); }

    static constexpr std::size_t size = sizeof(std::int64_t);

private:
    alignas(std::int64_t) std::array<std::byte, size> bytes_{};
};

// What stands in front of a type says how it is passed between processes.
char kindOf(std::string_view type) {
    while (!type.empty() && std::string_view("rnNoORV").contains(type.front()))
        type.remove_prefix(1);
    return type.empty() ? 'v' : type.front();
}

/// Whether arguments of that kind fit into a cell: objects, pointers, and numbers, but no structures.
bool fits(char kind) {
    return std::string_view("@#:^*BcCsSiIlLqQfd").contains(kind);
}

Cell cellOf(const MessageValue& value, char kind) {
    Cell cell;
    switch (kind) {
    case '@':
        cell.set<id>(messageObject(value));
        break;
    case 'B':
    case 'C':
        cell.set(static_cast<ObjcBool>(MessageTraits<bool>::unpack(value)));
        break;
    case 'f':
        cell.set(static_cast<float>(MessageTraits<double>::unpack(value)));
        break;
    case 'd':
        cell.set(MessageTraits<double>::unpack(value));
        break;
    case '#':
    case ':':
    case '^':
    case '*':
        break; // no value is one
    default:
        cell.set(MessageTraits<std::int64_t>::unpack(value));
        break;
    }
    return cell;
}

MessageValue valueOf(const Cell& cell, char kind) {
    switch (kind) {
    case '@':
        return messageValueOf(cell.get<id>());
    case 'B':
    case 'C':
        return PropertyList(static_cast<bool>(cell.get<ObjcBool>()));
    case 'f':
        return PropertyList(static_cast<double>(cell.get<float>()));
    case 'd':
        return PropertyList(cell.get<double>());
    case 'i':
    case 'I':
        return PropertyList(cell.get<std::int32_t>());
    case 'q':
    case 'Q':
    case 'l':
    case 'L':
        return PropertyList(cell.get<std::int64_t>());
    default:
        return {};
    }
}

std::uint64_t argumentCount(id signature) {
    return send<"-[NSMethodSignature numberOfArguments]", std::uint64_t>(signature);
}

const char* argumentType(id signature, std::uint64_t index) {
    return send<"-[NSMethodSignature getArgumentTypeAtIndex:]", const char*>(signature, index);
}

/// The first type that no argument can be made of; null when there is none.
const char* typeThatDoesNotFit(id signature) {
    for (auto i = implicitArguments; i < argumentCount(signature); ++i) {
        if (const auto* const type = argumentType(signature, i); !fits(kindOf(type)))
            return type;
    }
    return nullptr;
}

MessageValue invoke(id target, SEL selector, id signature, std::span<const MessageValue> arguments) {
    const id invocation = sendToClass<"+[NSInvocation invocationWithMethodSignature:]", id>(signature);
    send<"-[NSInvocation setSelector:]", void>(invocation, selector);
    for (auto i = implicitArguments; i < argumentCount(signature); ++i) {
        const auto place = static_cast<std::size_t>(i - implicitArguments);
        auto cell = cellOf(place < arguments.size() ? arguments[place] : MessageValue(),
                           kindOf(argumentType(signature, i)));
        send<"-[NSInvocation setArgument:atIndex:]", void>(invocation, cell.address(),
                                                           static_cast<std::int64_t>(i));
    }
    send<"-[NSInvocation invokeWithTarget:]", void>(invocation, target);
    const auto kind = kindOf(send<"-[NSMethodSignature methodReturnType]", const char*>(signature));
    Cell cell;
    if (kind != 'v' &&
        send<"-[NSMethodSignature methodReturnLength]", std::uint64_t>(signature) <= Cell::size)
        send<"-[NSInvocation getReturnValue:]", void>(invocation, cell.address());
    return valueOf(cell, kind);
}

SEL selectorFrom(std::string_view text) {
    return sel_registerName(std::string(text).c_str());
}

} // namespace

bool NSObject::respondsToSelector(std::string_view selector) const {
    return send<"-[NSObject respondsToSelector:]", bool>(*this, selectorFrom(selector));
}

MessageValue NSObject::performSelector(std::string_view selectorText,
                                       std::initializer_list<MessageValue> arguments) {
    const AutoreleasePool pool;
    const id receiver = objectOf(*this);
    const SEL selector = selectorFrom(selectorText);
    const std::string_view className = class_getName(object_getClass(receiver));
    const id signature = send<"-[NSObject methodSignatureForSelector:]", id>(receiver, selector);
    if (signature == nullptr) {
        NSLog("-[%@ %@]: unrecognized selector sent to %@", className, selectorText, description());
        return {};
    }
    if (const auto* const type = typeThatDoesNotFit(signature)) {
        NSLog("-[%@ %@] is not sent by its selector: it takes a %@.", className, selectorText, type);
        return {};
    }
    return invoke(receiver, selector, signature, std::span(arguments.begin(), arguments.size()));
}
