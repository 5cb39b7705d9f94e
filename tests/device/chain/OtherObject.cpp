#include "Shape.h"

Shape* makeTriangleElsewhere() {
    return new Polygon<3>;
}

/// Nobody calls it, so neither it nor the table it needs is in the bundle. Internal, it would not even reach
/// the linker.
// NOLINTNEXTLINE(misc-use-internal-linkage)
Shape* makeUnusedShape();

Shape* makeUnusedShape() {
    return new Polygon<12>;
}
