#pragma once

// For the stand-ins, which are Objective-C, and for the tests, which are C++.

#ifdef __cplusplus
#include <string>
#include <vector>

/// What has happened since this was last asked for, in order: the messages that stand-ins of the frameworks'
/// classes were sent by the code under test, and calls of the system's functions.
std::vector<std::string> takeJournal();

extern "C"
#endif
    __attribute__((visibility("default"))) void addToJournal(const char* line);
