#include "Collections.h"

#include "Message.h"

std::uint64_t countOf(id collection) {
    return send<"-[NSArray count]", std::uint64_t>(collection);
}

id objectAt(id array, std::uint64_t index) {
    return send<"-[NSArray objectAtIndex:]", id>(array, index);
}

id emptyArray() {
    return sendToClass<"+[NSMutableArray array]", id>();
}

void addTo(id array, id object) {
    send<"-[NSMutableArray addObject:]", void>(array, object);
}
