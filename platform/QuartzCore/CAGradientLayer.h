#pragma once

#include "QuartzCore/CALayer.h"
#include "UIKit/UIColor.h"

#include <vector>

/// A layer filled with colours that go over into each other along a line, within its corners. Put among the
/// sublayers of another by whoever makes it. Main thread only.
class CAGradientLayer : public CALayer {
public:
    CAGradientLayer();

    /// At equal distances along the line, the first at its start. One is a plain fill, none shows nothing.
    /// A colour is taken as it looks at the moment.
    void setColors(const std::vector<Ref<UIColor>>& colors);

    /// The ends of the line: (0, 0) is the upper left corner of the bounds, (1, 1) the lower right one.
    /// Beyond them the outer colours go on. From the middle of the upper edge to that of the lower one at
    /// first.
    void setStartPoint(CGPoint point);
    void setEndPoint(CGPoint point);
};
