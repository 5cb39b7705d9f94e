#pragma once

#include "Runtime.h"

#include <memory>

/// What a box holds; ends with the box.
struct BoxContent {
    BoxContent() = default;
    virtual ~BoxContent() = default;
    BoxContent(const BoxContent&) = delete;
    BoxContent& operator=(const BoxContent&) = delete;
};

/// A new Objective-C object whose only use is to be kept: its `dealloc` ends the content. Copying it gives
/// the same one. The caller owes a release.
[[nodiscard]] id makeBox(std::unique_ptr<BoxContent> content);

/// What a box holds; null when the object is no box.
[[nodiscard]] BoxContent* boxContent(id object);
