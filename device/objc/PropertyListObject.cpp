#include "PropertyListObject.h"

#include "Foundation/NSString.h"
#include "Message.h"

#include <algorithm>
#include <string_view>

namespace {

id objectFor(bool value) {
    return sendToClass<"+[NSNumber numberWithBool:]", id>(value);
}

id objectFor(std::int64_t value) {
    return sendToClass<"+[NSNumber numberWithLongLong:]", id>(value);
}

id objectFor(std::uint64_t value) {
    return sendToClass<"+[NSNumber numberWithUnsignedLongLong:]", id>(value);
}

id objectFor(double value) {
    return sendToClass<"+[NSNumber numberWithDouble:]", id>(value);
}

id objectFor(const std::string& text) {
    return textObject(text);
}

id objectFor(const NSData& data) {
    return sendToClass<"+[NSData dataWithBytes:length:]", id>(static_cast<const void*>(data.bytes.data()),
                                                              std::uint64_t{data.bytes.size()});
}

id objectFor(NSDate date) {
    return sendToClass<"+[NSDate dateWithTimeIntervalSinceReferenceDate:]", id>(
        date.timeIntervalSinceReferenceDate);
}

id objectFor(const PropertyList::Array& array) {
    return arrayOf(array, propertyListObject);
}

id objectFor(const PropertyList::Dictionary& dictionary) {
    return dictionaryObject(dictionary);
}

bool isKindOf(id object, const char* className) {
    return send<"-[NSObject isKindOfClass:]", bool>(object, objc_getClass(className));
}

// The two booleans are objects of their own, and there are no others.
std::optional<PropertyList> booleanOf(id number) {
    for (const bool value : {false, true}) {
        if (number == objectFor(value))
            return value;
    }
    return std::nullopt;
}

PropertyList numberOf(id number) {
    if (auto boolean = booleanOf(number))
        return *std::move(boolean);
    const std::string_view type = send<"-[NSNumber objCType]", const char*>(number);
    if (type == "d" || type == "f")
        return send<"-[NSNumber doubleValue]", double>(number);
    if (type == "Q")
        return send<"-[NSNumber unsignedLongLongValue]", std::uint64_t>(number);
    return send<"-[NSNumber longLongValue]", std::int64_t>(number);
}

NSData dataOf(id data) {
    const auto length = static_cast<std::size_t>(send<"-[NSData length]", std::uint64_t>(data));
    if (length == 0)
        return {};
    const auto* const bytes = static_cast<const char*>(send<"-[NSData bytes]", const void*>(data));
    return NSData::dataWithBytes({bytes, length});
}

PropertyList::Array arrayFrom(id array) {
    PropertyList::Array values;
    for (std::uint64_t i = 0; i < countOf(array); ++i) {
        if (auto value = propertyListOf(objectAt(array, i)))
            values.push_back(*std::move(value));
    }
    return values;
}

PropertyList::Dictionary dictionaryFrom(id dictionary) {
    PropertyList::Dictionary values;
    const id keys = send<"-[NSDictionary allKeys]", id>(dictionary);
    for (std::uint64_t i = 0; i < countOf(keys); ++i) {
        const id key = objectAt(keys, i);
        auto value = propertyListOf(send<"-[NSDictionary objectForKey:]", id>(dictionary, key));
        if (isText(key) && value)
            values.insert_or_assign(textOf(key), *std::move(value));
    }
    return values;
}

bool textCanBeKept(std::string_view text) {
    return isValidUTF8(text) && !text.contains('\0');
}

} // namespace

id propertyListObject(const PropertyList& value) {
    return value.visit([](const auto& held) { return objectFor(held); });
}

id dictionaryObject(const PropertyList::Dictionary& dictionary) {
    const id object = sendToClass<"+[NSMutableDictionary dictionary]", id>();
    for (const auto& [key, value] : dictionary)
        send<"-[NSMutableDictionary setObject:forKey:]", void>(object, propertyListObject(value),
                                                               textObject(key));
    return object;
}

std::optional<PropertyList> propertyListOf(id object) {
    if (isText(object))
        return textOf(object);
    if (isKindOf(object, "NSNumber"))
        return numberOf(object);
    if (isKindOf(object, "NSData"))
        return dataOf(object);
    if (isKindOf(object, "NSDate"))
        return NSDate{send<"-[NSDate timeIntervalSinceReferenceDate]", double>(object)};
    if (isKindOf(object, "NSArray"))
        return arrayFrom(object);
    if (isKindOf(object, "NSDictionary"))
        return dictionaryFrom(object);
    return std::nullopt;
}

std::optional<PropertyList::Dictionary> dictionaryOf(id object) {
    return isKindOf(object, "NSDictionary") ? std::optional(dictionaryFrom(object)) : std::nullopt;
}

bool canBeKept(const PropertyList& value) {
    if (const auto* const text = value.getIf<std::string>())
        return textCanBeKept(*text);
    if (const auto* const array = value.getIf<PropertyList::Array>())
        return std::ranges::all_of(*array, [](const PropertyList& element) { return canBeKept(element); });
    if (const auto* const dictionary = value.getIf<PropertyList::Dictionary>())
        return std::ranges::all_of(*dictionary, [](const auto& entry) {
            return textCanBeKept(entry.first) && canBeKept(entry.second);
        });
    return true;
}
