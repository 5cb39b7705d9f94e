#include "Foundation/NSDate.h"

#include "Message.h"

NSDate NSDate::date() {
    const AutoreleasePool pool;
    const id now = sendToClass<"+[NSDate date]", id>();
    return {send<"-[NSDate timeIntervalSinceReferenceDate]", double>(now)};
}
