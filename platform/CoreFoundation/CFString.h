#pragma once

#include <string_view>

/// The system's own text object; each platform defines it.
struct CFStringObject;

/// How functions of C take a text, null for none. Theirs for as long as the call lasts.
using CFStringRef = const CFStringObject*;

/// Owns a text for calls of such functions.
class CFString {
public:
    /// \param text in UTF-8
    explicit CFString(std::string_view text);
    ~CFString();
    CFString(const CFString&) = delete;
    CFString& operator=(const CFString&) = delete;

    [[nodiscard]] CFStringRef ref() const { return object_; }

private:
    CFStringRef object_;
};
