#include "ObjectProperties.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "JsonValues.h"
#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"
#include "views/UIViewPeer.h"

#include <cctype>

namespace {

/// "on" is set by "setOn:", "isOn" too.
std::string setterOf(std::string_view getter) {
    auto name = std::string(getter);
    const auto isQuestion =
        name.size() > 2 && name.starts_with("is") && std::isupper(static_cast<unsigned char>(name[2])) != 0;
    if (isQuestion)
        name.erase(0, 2);
    if (!name.empty())
        name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return "set" + name + ":";
}

QJsonValue jsonOfObject(const Ref<NSObject>& object, const Traits& traits) {
    if (const auto color = dynamicCast<UIColor>(object))
        return jsonOf(DesktopColor::resolve(color, traits));
    if (const auto image = dynamicCast<DesktopImage>(object))
        return QJsonObject{{"symbol", jsonOfText(image->symbolName())}, {"size", jsonOf(image->size())}};
    return object ? jsonOfText(object->isa().name()) : QJsonValue();
}

QJsonValue jsonOfMessage(const MessageValue& value, const Traits& traits) {
    if (const auto* const list = std::get_if<PropertyList>(&value))
        return jsonOf(*list);
    if (const auto* const object = std::get_if<Ref<NSObject>>(&value))
        return jsonOfObject(*object, traits);
    QJsonArray array;
    if (const auto* const objects = std::get_if<std::vector<Ref<NSObject>>>(&value)) {
        for (const auto& object : *objects)
            array.append(jsonOfObject(object, traits));
        return array;
    }
    return {};
}

void addStatedProperties(UIView& view, const Class& stated, QJsonObject& properties) {
    for (const auto& method : stated.methods()) {
        const auto isGetter = method.parameters.empty() && method.result != MessageType::Nothing;
        if (isGetter && view.respondsToSelector(setterOf(method.selector)))
            properties.insert(jsonOfText(method.selector).toString(),
                              jsonOfMessage(view.performSelector(method.selector), view.peer().traits()));
    }
}

} // namespace

QJsonObject viewProperties(UIView& view) {
    auto properties = jsonOf(PropertyList(view.peer().inspectedProperties())).toObject();
    for (const auto* stated = &view.isa(); stated != nullptr; stated = stated->superclass())
        addStatedProperties(view, *stated, properties);
    if (const auto tag = view.peer().tag(); tag != 0)
        properties.insert("tag", tag);
    if (const auto* const control = peerIf<UIControlPeer>(view)) {
        properties.insert("enabled", control->isEnabled());
        properties.insert("highlighted", control->isHighlighted());
        properties.insert("tracking", control->isTracking());
    }
    return properties;
}
