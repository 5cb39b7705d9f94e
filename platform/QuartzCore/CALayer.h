#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "ObjectiveC/NSObject.h"
#include "UIKit/UIBezierPath.h"
#include "UIKit/UIColor.h"

#include <cstddef>
#include <memory>

/// The platform's half of a layer; each platform defines it.
class CALayerPeer;

/// What a view looks like: its corners, border and shadow. Made and owned by its view, or put among the
/// sublayers of another layer. Lengths are in points. A colour is taken as it looks at the moment it is set.
/// Main thread only.
class CALayer : public NSObject {
public:
    CALayer();

    /// In points of the superlayer.
    void setFrame(const CGRect& frame);

    /// Puts a layer at a place among the sublayers, 0 being beneath all others; a view's layer has those of
    /// its subviews there. Takes it away from where it is.
    void insertSublayer(const Ref<CALayer>& sublayer, std::size_t index);

    [[nodiscard]] double cornerRadius() const;
    void setCornerRadius(double radius);

    void setBorderWidth(double width);
    void setBorderColor(const Ref<UIColor>& color);

    void setShadowColor(const Ref<UIColor>& color);
    void setShadowRadius(double radius);
    /// 0..1.
    void setShadowOpacity(double opacity);
    void setShadowOffset(CGSize offset);
    /// The outline that throws the shadow, in the layer's own coordinates; without one, what the layer
    /// paints.
    void setShadowPath(const Ref<UIBezierPath>& path);

    /// Whether what lies in the layer is cut off at its edges.
    void setMasksToBounds(bool masks);

    /// For the platform's own code.
    [[nodiscard]] CALayerPeer& peer() const { return *peer_; }

protected:
    explicit CALayer(std::unique_ptr<CALayerPeer> peer);
    ~CALayer() override;

private:
    const std::unique_ptr<CALayerPeer> peer_;
};
