#pragma once

#include <cstdint>
#include <string>

/// A file's size as the user reads it, in the device's locale: "3 bytes", "12 KB", "1.2 MB". A kilobyte is
/// 1000 bytes.
[[nodiscard]] std::string fileSizeText(std::uint64_t bytes);
