#include "WithoutPrivileges.h"

#include <sys/fsuid.h>

#include <unistd.h>

WithoutPrivileges::WithoutPrivileges() {
    constexpr uid_t nobody = 65534;
    setfsuid(nobody); // which takes the file capabilities along
}

WithoutPrivileges::~WithoutPrivileges() {
    setfsuid(geteuid());
}
