#include "Foundation/NSData.h"

#include "Message.h"

std::optional<NSData> NSData::dataWithContentsOfFile(std::string_view path) {
    const AutoreleasePool pool;
    const auto read = propertyListOf(sendToClass<"+[NSData dataWithContentsOfFile:]", id>(path));
    return read ? std::optional(*read->getIf<NSData>()) : std::nullopt;
}
