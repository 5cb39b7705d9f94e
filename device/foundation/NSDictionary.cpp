#include "Foundation/NSDictionary.h"

#include "Message.h"

std::optional<PropertyList::Dictionary> dictionaryWithContentsOfFile(std::string_view path) {
    const AutoreleasePool pool;
    return dictionaryOf(sendToClass<"+[NSDictionary dictionaryWithContentsOfFile:]", id>(path));
}

bool writeToFileAtomically(const PropertyList::Dictionary& dictionary, std::string_view path) {
    const AutoreleasePool pool;
    return canBeKept(dictionary) &&
           send<"-[NSDictionary writeToFile:atomically:]", bool>(dictionaryObject(dictionary), path, true);
}
