#pragma once

#include "Foundation/NSFileHandle.h"
#include "files/RegularFile.h"

#include <optional>
#include <utility>

/// A regular file of the device, open for writing.
class DesktopFileHandle final : public NSFileHandle {
public:
    explicit DesktopFileHandle(RegularFile file) : file_(std::move(file)) {}

    bool writeData(const NSData& data) override;
    void closeFile() override;

private:
    std::optional<RegularFile> file_;
};
