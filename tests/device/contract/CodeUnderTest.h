#pragma once

#include <string>

/// Where the code under test is on this machine: the folder that the system takes for its bundle.
[[nodiscard]] std::string folderOfCode();
