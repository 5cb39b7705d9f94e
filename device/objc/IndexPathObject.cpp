#include "IndexPathObject.h"

#include "Message.h"

id indexPathObject(NSIndexPath path) {
    return sendToClass<"+[NSIndexPath indexPathForRow:inSection:]", id>(path.row, path.section);
}

NSIndexPath indexPathOf(id path) {
    return {.section = send<"-[NSIndexPath section]", std::int64_t>(path),
            .row = send<"-[NSIndexPath row]", std::int64_t>(path)};
}
