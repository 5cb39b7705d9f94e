#include "specifiers/DesktopSpecifier.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"

namespace {

const Class specifierClass = Class::define<PSSpecifier>("PSSpecifier");

constexpr double greatestHeight = 10000; ///< points; what is above is taken for a mistake

/// The name of a message, unless the list names another.
std::string selectorOr(const std::string& named, std::string_view standard) {
    return named.empty() ? std::string(standard) : named;
}

} // namespace

SpecifierKind DesktopSpecifier::kind() const {
    return specifierKindNamed(kindName());
}

std::string DesktopSpecifier::identifier() const {
    for (const auto* const key : {"id", "key", "label"}) {
        if (auto text = textForKey(key); !text.empty())
            return text;
    }
    return {};
}

std::optional<double> DesktopSpecifier::height() const {
    const auto value = propertyForKey("height");
    return value && isHeight(*value) ? std::optional(value->doubleValue()) : std::nullopt;
}

bool DesktopSpecifier::isHeight(const PropertyList& value) {
    return value.isNumber() && value.getIf<bool>() == nullptr && value.doubleValue() >= 0 &&
           value.doubleValue() <= greatestHeight;
}

std::string DesktopSpecifier::textForKey(std::string_view key) const {
    const auto found = properties_.find(key);
    const auto* const text = found != properties_.end() ? found->second.getIf<std::string>() : nullptr;
    return text != nullptr ? *text : std::string();
}

bool DesktopSpecifier::boolForKey(std::string_view key, bool otherwise) const {
    const auto value = propertyForKey(key);
    return value && isYesOrNo(*value) ? value->boolValue() : otherwise;
}

bool DesktopSpecifier::isYesOrNo(const PropertyList& value) {
    return value.isNumber() || value.getIf<std::string>() != nullptr;
}

const PropertyList::Array* DesktopSpecifier::arrayForKey(std::string_view key) const {
    const auto found = properties_.find(key);
    return found != properties_.end() ? found->second.getIf<PropertyList::Array>() : nullptr;
}

Ref<UIImage> DesktopSpecifier::imageForKey(std::string_view key) const {
    const auto found = images_.find(key);
    return found != images_.end() ? found->second : nullptr;
}

std::optional<PropertyList> DesktopSpecifier::performGetter() {
    const auto answer =
        send(selectorOr(textForKey("get"), "readPreferenceValue:"), {Ref<NSObject>(retain(this))});
    const auto* const value = std::get_if<PropertyList>(&answer);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

void DesktopSpecifier::performSetter(const std::optional<PropertyList>& value) {
    send(selectorOr(textForKey("set"), "setPreferenceValue:specifier:"),
         {value ? MessageValue(*value) : MessageValue(), Ref<NSObject>(retain(this))});
}

bool DesktopSpecifier::keepsValue() const {
    return !textForKey("key").empty() || !textForKey("set").empty();
}

std::optional<PropertyList> DesktopSpecifier::performDataSource(std::string_view key) {
    const auto selector = textForKey(key);
    const auto answer = selector.empty() ? MessageValue() : send(selector, {Ref<NSObject>(retain(this))});
    const auto* const value = std::get_if<PropertyList>(&answer);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

void DesktopSpecifier::performMessage(std::string_view key) {
    if (const auto selector = textForKey(key); !selector.empty())
        send(selector, {Ref<NSObject>(retain(this))});
}

void DesktopSpecifier::performAction() {
    performMessage(textForKey("action").empty() ? "buttonAction" : "action");
}

MessageValue DesktopSpecifier::send(const std::string& selector,
                                    std::initializer_list<MessageValue> arguments) {
    const auto target = this->target();
    if (!target)
        return {};
    if (target->respondsToSelector(selector))
        return target->performSelector(selector, arguments);
    if (unanswered_.insert(selector).second)
        NSLog("Row %@: %@ does not answer '%@'.", identifier(), target->description(), selector);
    return {};
}

bool DesktopSpecifier::hasAction() const {
    return !textForKey("action").empty() || !textForKey("buttonAction").empty();
}

std::optional<PropertyList> DesktopSpecifier::propertyForKey(std::string_view key) const {
    const auto found = properties_.find(key);
    if (found != properties_.end())
        return found->second;
    const auto named = key == PSIDKey ? identifier() : std::string();
    return named.empty() ? std::nullopt : std::optional<PropertyList>(named);
}

Ref<NSObject> DesktopSpecifier::propertyObjectForKey(std::string_view key) const {
    return key == PSTableCellKey ? cell() : nullptr;
}
