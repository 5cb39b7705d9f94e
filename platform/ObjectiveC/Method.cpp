#include "ObjectiveC/Method.h"

bool MessageTraits<bool>::unpack(const MessageValue& value) {
    const auto* list = std::get_if<PropertyList>(&value);
    return list != nullptr && list->boolValue();
}

MessageValue MessageTraits<bool>::pack(bool value) {
    return PropertyList(value);
}

double MessageTraits<double>::unpack(const MessageValue& value) {
    const auto* list = std::get_if<PropertyList>(&value);
    return list != nullptr ? list->doubleValue() : 0.0;
}

MessageValue MessageTraits<double>::pack(double value) {
    return PropertyList(value);
}

std::optional<std::string> MessageTraits<std::optional<std::string>>::unpack(const MessageValue& value) {
    const auto* list = std::get_if<PropertyList>(&value);
    const auto* text = list != nullptr ? list->getIf<std::string>() : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

MessageValue MessageTraits<std::optional<std::string>>::pack(const std::optional<std::string>& value) {
    return value ? MessageValue(PropertyList(*value)) : MessageValue();
}

std::optional<PropertyList> MessageTraits<std::optional<PropertyList>>::unpack(const MessageValue& value) {
    const auto* list = std::get_if<PropertyList>(&value);
    return list != nullptr ? std::optional(*list) : std::nullopt;
}

MessageValue MessageTraits<std::optional<PropertyList>>::pack(const std::optional<PropertyList>& value) {
    return value ? MessageValue(*value) : MessageValue();
}

std::optional<std::vector<std::string>>
MessageTraits<std::optional<std::vector<std::string>>>::unpack(const MessageValue& value) {
    const auto* list = std::get_if<PropertyList>(&value);
    const auto* array = list != nullptr ? list->getIf<PropertyList::Array>() : nullptr;
    if (array == nullptr)
        return std::nullopt;
    std::vector<std::string> texts;
    for (const auto& element : *array) {
        if (const auto* text = element.getIf<std::string>())
            texts.push_back(*text);
    }
    return texts;
}

MessageValue MessageTraits<std::optional<std::vector<std::string>>>::pack(
    const std::optional<std::vector<std::string>>& value) {
    return value ? MessageValue(PropertyList(PropertyList::Array(value->begin(), value->end())))
                 : MessageValue();
}

std::function<void()> MessageTraits<std::function<void()>>::unpack(const MessageValue& value) {
    const auto* block = std::get_if<MessageBlock>(&value);
    return block != nullptr ? **block : std::function<void()>();
}

MessageValue MessageTraits<std::function<void()>>::pack(std::function<void()> value) {
    return value ? MessageValue(std::make_shared<const std::function<void()>>(std::move(value)))
                 : MessageValue();
}
