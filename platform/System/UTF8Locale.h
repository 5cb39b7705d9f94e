#pragma once

#include <memory>

/// While it lives, other libraries' functions that this thread calls take texts for UTF-8, and all else as in
/// the locale "C", whatever the process's locale says. Ends on the thread that it was made on, before older
/// ones.
class UTF8Locale {
public:
    UTF8Locale();
    ~UTF8Locale();
    UTF8Locale(const UTF8Locale&) = delete;
    UTF8Locale& operator=(const UTF8Locale&) = delete;

private:
    struct State;

    const std::unique_ptr<State> state_;
};
