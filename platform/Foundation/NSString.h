#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The platform's operations on text that the pane and its platforms need. Text is a `std::string` in UTF-8.

/// A copy of a C string; nothing when it is null or not valid UTF-8.
[[nodiscard]] std::optional<std::string> stringWithUTF8String(const char* text);

/// Whether the bytes are valid UTF-8 (shortest forms only, no surrogates, nothing above U+10FFFF).
[[nodiscard]] bool isValidUTF8(std::string_view text);

/// The path with one more component, and exactly one "/" between the two. An empty path gives the component.
/// ("/tmp", "a"), ("/tmp/", "a") and ("/tmp", "/a") all give "/tmp/a".
[[nodiscard]] std::string stringByAppendingPathComponent(std::string_view path, std::string_view component);

/// What precedes the last component: "/a" of "/a/b", "/" of "/a", "" of "a".
[[nodiscard]] std::string stringByDeletingLastPathComponent(std::string_view path);

/// "b" of "/a/b" and of "/a/b/", "/" of "/", "" of "".
[[nodiscard]] std::string lastPathComponent(std::string_view path);

/// What follows the last dot of the last component: "gz" of "/a/b.tar.gz". "" without such a dot, when it is
/// the component's first character or its last, and when what follows it holds a space.
[[nodiscard]] std::string pathExtension(std::string_view path);

/// The path without its extension and the dot before that, if it has one: "/a/b.tar" of "/a/b.tar.gz".
[[nodiscard]] std::string stringByDeletingPathExtension(std::string_view path);

/// The text with every byte percent-encoded that may not stand in the path of a URL as it is: all but
/// letters, digits and "!$&'()*+,-./:=@_~".
[[nodiscard]] std::string stringByAddingPercentEncodingWithURLPathAllowedCharacters(std::string_view text);

/// What stands before, between and after the separators, of which each is exactly `separator`; the whole text
/// when there is none in it.
/// \pre `separator` is not empty
[[nodiscard]] std::vector<std::string> componentsSeparatedByString(std::string_view text,
                                                                   std::string_view separator);
