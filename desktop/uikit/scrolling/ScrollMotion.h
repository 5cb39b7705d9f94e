#pragma once

#include <limits>

/// How contents move by themselves along one axis, as a formula of the time since they began. Made by the
/// scroll view. Places are in points, times in seconds.
class ScrollMotion {
public:
    /// What is left of the speed after a millisecond.
    static constexpr double keptPerMillisecond = 0.998;

    /// Contents that come to rest within this of where they are going are there.
    static constexpr double closeEnough = 0.5;

    /// Slows down towards `target`. Where that lies beyond an edge, the contents pass the edge with what
    /// speed they have left and are drawn back to it; from beyond an edge they are drawn back at once unless
    /// the target lies inside of it. \pre least <= greatest
    [[nodiscard]] static ScrollMotion glide(double from, double target, double least, double greatest);

    /// Drawn to `rest` by a spring that does not swing.
    [[nodiscard]] static ScrollMotion spring(double from, double velocity, double rest);

    /// Goes to `rest` in that time, slow at both ends.
    [[nodiscard]] static ScrollMotion ease(double from, double rest, double duration);

    /// Where contents of that speed, points a second, come to rest.
    [[nodiscard]] static double glideEnd(double from, double velocity);

    /// How far contents are drawn beyond an edge for a finger that is `distance` beyond it.
    /// \param length of the scroll view along the axis
    [[nodiscard]] static double banded(double distance, double length);
    /// The distance that is drawn as `distance`. \pre distance < length
    [[nodiscard]] static double unbanded(double distance, double length);

    [[nodiscard]] double at(double time) const;
    [[nodiscard]] bool isOverAt(double time) const;

    /// Where the motion ends.
    [[nodiscard]] double rest() const { return rest_; }

private:
    static constexpr double never = std::numeric_limits<double>::infinity();

    explicit ScrollMotion(double from, double rest) : from_(from), target_(rest), rest_(rest) {}

    [[nodiscard]] double springDistance(double time) const;
    [[nodiscard]] double springVelocity(double time) const;

    double from_;
    double target_; ///< of the slowing down
    double rest_;
    double easeDuration_ = 0;     ///< 0 for the other motions
    double springBegin_ = never;  ///< when the spring takes over
    double springStart_ = 0;      ///< its distance from `rest_` then
    double springStartSpeed_ = 0; ///< points a second
};
