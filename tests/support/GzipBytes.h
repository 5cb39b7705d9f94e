#pragma once

#include <string>
#include <string_view>

/// A gzip file of those bytes, none of them compressed, so that each is found again in it as it stands.
[[nodiscard]] std::string gzipped(std::string_view bytes);
