#pragma once

/// While it lives, this thread touches files without the rights of an administrator, if it had any.
class WithoutPrivileges {
public:
    WithoutPrivileges();
    ~WithoutPrivileges();
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
};
