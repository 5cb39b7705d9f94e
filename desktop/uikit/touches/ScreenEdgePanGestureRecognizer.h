#pragma once

#include "touches/PanGestureRecognizer.h"

/// A finger that draws something in from an edge of its view, the leading one at first. Goes before other
/// pans of its touch. Made by whoever adds it to a view.
class ScreenEdgePanGestureRecognizer : public PanGestureRecognizer {
public:
    enum class Edge { Leading, Bottom };

    /// How far from the edge the finger may come down; points.
    static constexpr double edgeWidth = 20;

    void setEdge(Edge edge) { edge_ = edge; }

    // GestureRecognizer:
    [[nodiscard]] bool receives(const DesktopTouch& touch) const override;
    [[nodiscard]] bool shouldBegin() override;
    [[nodiscard]] bool goesBefore(const GestureRecognizer& other) const override;

private:
    Edge edge_ = Edge::Leading;
};
