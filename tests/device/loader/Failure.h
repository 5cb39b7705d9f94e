#pragma once

/// Ends the program with a message and a status that no bundle under test answers with.
[[noreturn]] void fail(const char* reason, const char* what = "");
