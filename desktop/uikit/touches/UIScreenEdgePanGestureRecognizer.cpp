#include "touches/UIScreenEdgePanGestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <cmath>

namespace {

const Class classObject = Class::define<UIScreenEdgePanGestureRecognizer, UIPanGestureRecognizer>(
    "UIScreenEdgePanGestureRecognizer");

} // namespace

bool UIScreenEdgePanGestureRecognizer::receives(const DesktopTouch& touch) const {
    const auto place = touch.locationInView(*view());
    const auto bounds = view()->bounds();
    const auto depth = edge_ == Edge::Leading ? place.x - bounds.origin.x : CGRectGetMaxY(bounds) - place.y;
    return depth >= 0 && depth < edgeWidth;
}

bool UIScreenEdgePanGestureRecognizer::shouldBegin() {
    const auto moved = movement();
    return edge_ == Edge::Leading ? moved.x > std::abs(moved.y) : -moved.y > std::abs(moved.x);
}

bool UIScreenEdgePanGestureRecognizer::goesBefore(const GestureRecognizer& other) const {
    return dynamic_cast<const UIPanGestureRecognizer*>(&other) != nullptr;
}
