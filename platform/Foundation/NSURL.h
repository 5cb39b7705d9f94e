#pragma once

#include "ObjectiveC/NSObject.h"

#include <string>
#include <string_view>

/// The address of a file or of something else. Never changes. Any thread.
class NSURL : public NSObject {
public:
    /// The URL of a file or folder, which need not exist. \param path absolute
    [[nodiscard]] static Ref<NSURL> fileURLWithPath(std::string_view path);

    /// Empty when the text is no URL: when it holds what has to be percent-encoded and is not.
    [[nodiscard]] static Ref<NSURL> URLWithString(std::string_view text);

    /// What follows the host, percent-decoded, without a "/" at the end; of a file its path. Empty when there
    /// is none.
    [[nodiscard]] virtual std::string path() const = 0;

    /// What follows the last "/" of the path; "/" of the path "/".
    [[nodiscard]] virtual std::string lastPathComponent() const = 0;

    /// What follows the last "." of the last component; empty when there is none, when nothing precedes it,
    /// or when what follows it holds a space.
    [[nodiscard]] virtual std::string pathExtension() const = 0;

    /// Asks for access to a file that somebody has chosen outside what the application may read by itself.
    /// \returns whether that has been granted; each time it was, `stopAccessing...` is owed
    [[nodiscard]] virtual bool startAccessingSecurityScopedResource() const = 0;
    virtual void stopAccessingSecurityScopedResource() const = 0;
};
