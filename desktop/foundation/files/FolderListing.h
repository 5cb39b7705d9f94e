#pragma once

#include <expected>
#include <string>
#include <vector>

/// The names in a folder of the host, as they are, without "." and ".."; or the error number.
/// \param folder open for whatever purpose; it stays open, and where it is read from next does not change
[[nodiscard]] std::expected<std::vector<std::string>, int> namesInFolder(int folder);
