#include "DesktopBezierPath.h"

#include "ContinuousCorners.h"
#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIBezierPath>("UIBezierPath");

} // namespace

Ref<UIBezierPath> UIBezierPath::bezierPathWithRoundedRect(const CGRect& rect, double cornerRadius) {
    const QRectF rectangle(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
    return make<DesktopBezierPath>(continuousCornersPath(rectangle, cornerRadius));
}
