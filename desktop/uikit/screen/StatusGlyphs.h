#pragma once

#include <QPainterPath>

/// The shapes of the status bar, in points from their upper left corner; fill them.
struct StatusGlyphs {
    static constexpr double height = 11.5;

    /// Four bars of a mobile network's strength, all of them full.
    [[nodiscard]] static QPainterPath signal();
    static constexpr double signalWidth = 17;

    /// Three arcs of a wireless network.
    [[nodiscard]] static QPainterPath wireless();
    static constexpr double wirelessWidth = 15.5;

    /// A full battery; its outline is fainter than what fills it.
    [[nodiscard]] static QPainterPath batteryOutline();
    [[nodiscard]] static QPainterPath batteryCharge();
    static constexpr double batteryWidth = 24.5;

    static constexpr double spacing = 5;
};
