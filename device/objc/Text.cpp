#include "Text.h"

#include "Message.h"

namespace {

enum class Encoding : std::uint64_t { Utf8 = 4, Latin1 = 5 }; // the platform's numbers

id newText(std::string_view text, Encoding encoding) {
    const id empty = sendToClass<"+[NSString alloc]", id>();
    return send<"-[NSString initWithBytes:length:encoding:]", id>(
        empty, static_cast<const void*>(text.data()), std::uint64_t{text.size()}, encoding);
}

} // namespace

id textObject(std::string_view text) {
    const id made = newText(text, Encoding::Utf8);
    return objc_autorelease(made != nullptr ? made : newText(text, Encoding::Latin1));
}

bool isText(id object) {
    return send<"-[NSObject isKindOfClass:]", bool>(object, objc_getClass("NSString"));
}

std::string textOf(id string) {
    const AutoreleasePool pool;
    const id data =
        send<"-[NSString dataUsingEncoding:allowLossyConversion:]", id>(string, Encoding::Utf8, true);
    const auto length = send<"-[NSData length]", std::uint64_t>(data);
    return length == 0 ? std::string()
                       : std::string(static_cast<const char*>(send<"-[NSData bytes]", const void*>(data)),
                                     static_cast<std::size_t>(length));
}

std::optional<std::string> textIfAny(id object) {
    return isText(object) ? std::optional(textOf(object)) : std::nullopt;
}
