#include "Foundation/NSUUID.h"

#include "Message.h"

std::string NSUUIDString() {
    const AutoreleasePool pool;
    return send<"-[NSUUID UUIDString]", std::string>(sendToClass<"+[NSUUID UUID]", id>());
}
