#pragma once

#include "Foundation/NSData.h"
#include "ObjectiveC/NSObject.h"

#include <string_view>

/// An open file that bytes are written to, from its start on. The file is not truncated: what lies beyond the
/// bytes written stays. Closed at its end at the latest.
class NSFileHandle : public NSObject {
public:
    /// Empty when there is no file at the path or it cannot be opened for writing.
    [[nodiscard]] static Ref<NSFileHandle> fileHandleForWritingAtPath(std::string_view path);

    /// Writes all bytes at the current place. \returns whether that went well; false after `closeFile`
    virtual bool writeData(const NSData& data) = 0;

    virtual void closeFile() = 0;
};
