#pragma once

#include <cstddef>
#include <string>

/// Runs what waits on the main queue, and what that queues. \returns how much that was
std::size_t runWaitingWork();

/// The file that is opened in the place of BackBoardServices; none when the path is empty.
void setServicesLibrary(std::string path);
