#include "touches/ScreenEdgePanGestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "views/UIViewPeer.h"

#include <cmath>

namespace {

const Class classObject =
    Class::define<ScreenEdgePanGestureRecognizer, PanGestureRecognizer>("ScreenEdgePanGestureRecognizer");

} // namespace

bool ScreenEdgePanGestureRecognizer::receives(const DesktopTouch& touch) const {
    const auto place = view()->peer().fromLeading(touch.locationInView(*view()));
    const auto bounds = view()->bounds();
    const auto depth = edge_ == Edge::Leading ? place.x - bounds.origin.x : CGRectGetMaxY(bounds) - place.y;
    return depth >= 0 && depth < edgeWidth;
}

bool ScreenEdgePanGestureRecognizer::shouldBegin() {
    const auto moved = movement();
    return edge_ == Edge::Leading ? moved.x * view()->peer().rightward() > std::abs(moved.y)
                                  : -moved.y > std::abs(moved.x);
}

bool ScreenEdgePanGestureRecognizer::goesBefore(const GestureRecognizer& other) const {
    return dynamic_cast<const PanGestureRecognizer*>(&other) != nullptr;
}
