#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Whether a file of that name is of one of the types, as far as its name tells: "public.data" is every file.
[[nodiscard]] bool isOfOneOf(const std::vector<std::string>& types, std::string_view fileName);
