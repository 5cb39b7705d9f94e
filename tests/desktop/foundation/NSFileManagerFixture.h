#pragma once

#include "Foundation/NSFileManager.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

/// What every test of the file manager stands on: a device, and ways to look at it from outside.
class NSFileManagerFixture : public testing::Test {
protected:
    NSFileManagerFixture();

    void link(const std::string& target, std::string_view path) const;
    void makeFolder(std::string_view path) const;
    void makeFifo(std::string_view path) const;
    void setMode(std::string_view path, mode_t mode) const;

    /// Makes folders of that name, each in the one before, from a folder that exists on.
    void makeDeepTree(std::string_view path, const std::string& name, int levels) const;

    /// Whether something is there, a link by itself.
    [[nodiscard]] bool isThere(std::string_view path) const;
    [[nodiscard]] struct stat statusOf(std::string_view path) const;

    /// Expects the platform's error of that code and text for `path`, and the host's error underneath.
    template <class T>
    static void expectError(const Result<T>& result, std::int64_t code, const std::string& text,
                            int hostError, std::string_view path) {
        ASSERT_FALSE(result.has_value());
        expectError(*result.error(), code, text, hostError, path);
    }

    TestDevice device;
    TemporaryFolder outside;
    NSFileManager& manager = NSFileManager::defaultManager();

private:
    static void expectError(const NSError& error, std::int64_t code, const std::string& text, int hostError,
                            std::string_view path);
};
