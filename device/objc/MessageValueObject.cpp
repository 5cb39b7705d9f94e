#include "MessageValueObject.h"

#include "Message.h"

#include <functional>
#include <memory>

namespace {

id objectFor(std::monostate /*nothing*/) {
    return nullptr;
}

id objectFor(const MessageBlock& block) {
    const Block<void()> made(*block);
    const auto* const object = static_cast<BlockRef>(made);
    // NOLINTNEXTLINE(*-pro-type-const-cast): the runtime's functions take no constant objects
    return objc_autorelease(objc_retain(reinterpret_cast<id>(const_cast<BlockObject*>(object))));
}

template <class T>
id objectFor(const T& value) {
    return rawAnswer(value);
}

/// A copy of the block is kept for as long as the value is.
MessageValue blockOf(id object) {
    const std::shared_ptr<void> kept(_Block_copy(object), [](void* block) { _Block_release(block); });
    return std::make_shared<const std::function<void()>>(
        [kept] { reinterpret_cast<void (^)()>(kept.get())(); });
}

MessageValue orNothing(std::optional<PropertyList> value) {
    return value ? MessageValue(*std::move(value)) : MessageValue();
}

} // namespace

id messageObject(const MessageValue& value) {
    return std::visit([](const auto& held) { return objectFor(held); }, value);
}

MessageValue messageValueOf(id object, MessageType type) {
    if (object == nullptr)
        return {};
    switch (type) {
    case MessageType::Text:
        return isText(object) ? MessageValue(PropertyList(textOf(object))) : MessageValue();
    case MessageType::Value:
        return orNothing(propertyListOf(object));
    case MessageType::Object:
        return instanceAs<NSObject>(object);
    case MessageType::Objects:
        return fromRaw<std::vector<Ref<NSObject>>>(object);
    case MessageType::Block:
        return blockOf(object);
    case MessageType::Nothing:
    case MessageType::Boolean:
    case MessageType::Integer:
    case MessageType::Real:
        break;
    }
    return {};
}

MessageValue messageValueOf(id object) {
    const auto value = propertyListOf(object);
    if (!value)
        return messageValueOf(object, MessageType::Object);
    const auto* const array = value->getIf<PropertyList::Array>();
    const bool holdsOtherThings = array != nullptr && array->size() != countOf(object);
    return holdsOtherThings ? messageValueOf(object, MessageType::Objects) : MessageValue(*value);
}
