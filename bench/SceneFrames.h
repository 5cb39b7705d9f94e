#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// The value that a part of all is not above. \pre there are some
[[nodiscard]] double quantile(std::vector<double> values, double part);

/// What the frames of one scene took, and whether that is good enough.
class SceneFrames {
public:
    /// Of the median, so many times what a copy of the whole picture takes.
    static constexpr double mostCopies = 15;

    explicit SceneFrames(std::string name) : name_(std::move(name)) {}

    /// \param time in milliseconds \param pixels that were painted; a frame without any does not count
    void add(double time, double pixels);

    /// \param time what a copy of the whole picture took close to the frames, since the machine may be faster
    /// or slower at other times; in milliseconds
    void setTimeOfCopy(double time) { timeOfCopy_ = time; }

    /// Whether something was painted, and fast enough.
    [[nodiscard]] bool isGood() const;

    /// Whether something was painted, and the median is below that of the same scene elsewhere.
    [[nodiscard]] bool isFasterThan(const SceneFrames& other) const;

    /// What the dearer of the first two that were painted took, or one before them: the first picture may
    /// show only where everything starts from.
    [[nodiscard]] double first() const { return first_; }

    /// A line for people.
    void print() const;

private:
    /// \pre something was painted
    [[nodiscard]] double median() const { return quantile(times_, 0.5); }

    std::string name_;
    double first_ = 0;
    std::vector<double> times_;
    std::vector<double> pixels_;
    double timeOfCopy_ = 0;
};
