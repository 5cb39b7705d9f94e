#pragma once

/// How far an animation has come at a moment of its course.
class AnimationCurve {
public:
    /// Slow at both ends: the cubic curve with the control points (0.42, 0) and (0.58, 1).
    [[nodiscard]] static AnimationCurve easeInOut() { return cubic(0.42, 0, 0.58, 1); }

    [[nodiscard]] static AnimationCurve easeOut() { return cubic(0, 0, 0.58, 1); }

    [[nodiscard]] static AnimationCurve linear() { return cubic(0, 0, 1, 1); }

    /// The curve of pages and sheets that come and go, and of the keyboard: a spring that does not swing,
    /// made for a course of `systemDuration`.
    [[nodiscard]] static AnimationCurve system() { return cubic(0.38, 0.70, 0.125, 1); }

    /// Seconds.
    static constexpr double systemDuration = 0.5;

    /// The cubic curve from (0, 0) to (1, 1) with those control points. \pre both x in 0..1
    [[nodiscard]] static AnimationCurve cubic(double x1, double y1, double x2, double y2) {
        return {x1, y1, x2, y2};
    }

    /// \param time the part of the course that has passed, held within 0..1
    /// \returns 0 at its begin and 1 at its end
    [[nodiscard]] double progress(double time) const;

private:
    AnimationCurve(double x1, double y1, double x2, double y2) : x1_(x1), y1_(y1), x2_(x2), y2_(y2) {}

    double x1_;
    double y1_;
    double x2_;
    double y2_;
};
