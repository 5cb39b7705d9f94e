#pragma once

#include "Framework.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

/// The page of backups, made and asked as the frameworks do it, with documents of its own. Its making has
/// left the journal.
class BackupPageFixture : public testing::Test {
    // Before the page, whose making hands out objects that end with it.
    const AutoreleasePool pool_;

protected:
    BackupPageFixture();
    ~BackupPageFixture() override;

    /// Where a backup of that name is, or would be.
    [[nodiscard]] std::string backup(std::string_view name) const;

    /// Makes a backup and puts its message away.
    void save(const char* name) const;

    const std::string folder;
    const id page;
};
