#pragma once

#include "Foundation/NSDate.h"
#include "files/DeviceRoot.h"

#include <expected>
#include <optional>
#include <string_view>

/// Notes beside a file or a folder when it was made by the device's clock: the host knows that by its own
/// clock alone, and lets nobody set it. Made before the thing itself. A file system that keeps no notes keeps
/// none; then the host's time counts.
class CreationNote {
public:
    explicit CreationNote(std::string_view path);

    /// It is there now. Nothing happens when something was there before.
    void made() const;

    /// Another thing is there now, in place of what was there before.
    void replaced() const;

    /// What was noted for what is there.
    [[nodiscard]] static std::optional<NSDate> of(const DeviceRoot::Place& place);

private:
    void write() const;

    std::expected<DeviceRoot::Place, int> place_;
    bool isNew_;
};
