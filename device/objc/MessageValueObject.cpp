#include "MessageValueObject.h"

#include "Message.h"

namespace {

id objectFor(std::monostate /*nothing*/) {
    return nullptr;
}

template <class T>
id objectFor(const T& value) {
    return rawAnswer(value);
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
