#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

/// In the place of the archive library, in the program that it is linked into: writes down the calls, answers
/// them as it is told, and gives out archives that nobody has packed. One at a time.
class RecordingLibrary {
public:
    RecordingLibrary();
    ~RecordingLibrary();
    RecordingLibrary(const RecordingLibrary&) = delete;
    RecordingLibrary& operator=(const RecordingLibrary&) = delete;

    [[nodiscard]] static RecordingLibrary& current();

    /// An entry of the archive that is read.
    struct Item {
        const char* name; ///< null for none
        unsigned type;    ///< as of a file's mode
        std::vector<std::string> blocks;
    };

    std::vector<Item> items;

    /// What calls of a function answer, by its name and one after the other; after that, success.
    std::map<std::string, std::deque<std::int64_t>> answers;

    /// Takes the next answer for a call and writes the call down.
    std::int64_t answer(const std::string& function, const std::string& arguments);

    /// The calls since this was last asked, a line each: names without "archive_", and arguments.
    [[nodiscard]] std::string takeCalls();

    /// How many handles and entries have been made and not been freed.
    [[nodiscard]] int living() const { return living_; }

    void count(int change) { living_ += change; }

private:
    std::string calls_;
    int living_ = 0;
};
