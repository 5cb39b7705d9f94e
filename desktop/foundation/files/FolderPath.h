#pragma once

#include "files/FileDescriptor.h"

#include <expected>
#include <string>
#include <vector>

/// The way from a folder of the host down to one below it, of any depth. It leads back up the way it came and
/// never asks for a folder's "..", so nobody can lead it elsewhere by moving folders. Few folders are open at
/// a time: for the others the way is walked again from its start, without following links.
class FolderPath {
public:
    /// \param start where the way starts; borrowed, it stays open for as long as this object is used
    explicit FolderPath(int start) : start_(start) {}

    /// The folder where the way ends. Valid until the next change.
    [[nodiscard]] int current() const { return steps_.empty() ? start_ : steps_.back().folder.get(); }

    /// How many folders below the start the way ends.
    [[nodiscard]] std::size_t depth() const { return steps_.size(); }

    /// The name of the folder where the way ends. \pre `depth` is not 0
    [[nodiscard]] const std::string& name() const { return steps_.back().name; }

    /// Goes on to a folder in the current one. A link is not followed.
    [[nodiscard]] std::expected<void, int> enter(std::string name);

    /// The same with a folder that the caller has opened under that name.
    void enter(std::string name, FileDescriptor folder);

    /// Goes back to the folder that holds the current one; at the start it stays there.
    [[nodiscard]] std::expected<void, int> leave();

    void returnToStart() { steps_.clear(); }

private:
    struct Step {
        std::string name;
        FileDescriptor folder; ///< none when the step lies too far back
    };

    [[nodiscard]] std::expected<void, int> walkAgain();
    void closeWhatLiesFarBehind(std::size_t step);

    int start_;
    std::vector<Step> steps_;
};
