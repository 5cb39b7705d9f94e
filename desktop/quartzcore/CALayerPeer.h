#pragma once

#include "AffineTransform.h"
#include "ColorComponents.h"
#include "CoreGraphics/CGGeometry.h"
#include "LayerAnimation.h"
#include "LayerProperty.h"
#include "QuartzCore/CALayer.h"
#include "ShownShape.h"

#include <QPainterPath>
#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

class LayerDelegate;

/// How a layer shows what lies behind it, through its background.
struct Backdrop {
    double blurRadius; ///< points
    double saturation; ///< 1 leaves colours as they are
    friend bool operator==(const Backdrop&, const Backdrop&) = default;
};

/// The desktop's half of a layer: its place in the tree, its values and the animations that run on them.
class CALayerPeer {
public:
    explicit CALayerPeer(CALayer& layer);

    virtual ~CALayerPeer();
    CALayerPeer(const CALayerPeer&) = delete;
    CALayerPeer& operator=(const CALayerPeer&) = delete;

    /// A number that no other layer of the process has or had.
    [[nodiscard]] std::uint64_t identity() const { return identity_; }

    // The tree.
    [[nodiscard]] CALayer* superlayer() const { return superlayer_; }

    [[nodiscard]] const std::vector<Ref<CALayer>>& sublayers() const { return sublayers_; }

    /// Puts a layer at that place among the sublayers, taking it away from where it is. A place beyond the
    /// end is the end.
    void insertSublayer(const Ref<CALayer>& sublayer, std::size_t index);

    void addSublayer(const Ref<CALayer>& sublayer) { insertSublayer(sublayer, sublayers_.size()); }

    /// Nothing happens when there is no superlayer. The layer's animations end, and those of all within it.
    void removeFromSuperlayer();

    // Values. Setting one while an animation group records animates it there.
    [[nodiscard]] const LayerValue& value(LayerProperty property) const {
        return values_[static_cast<std::size_t>(property)];
    }

    void setValue(LayerProperty property, const LayerValue& value);

    /// What is on screen at the device's present time.
    [[nodiscard]] LayerValue shownValue(LayerProperty property) const;

    [[nodiscard]] bool isAnimating() const;

    void removeAllAnimations();

    // The same in the terms that they are used in.
    [[nodiscard]] CGRect bounds() const;
    [[nodiscard]] CGRect frame() const;              ///< in the superlayer; around the transformed bounds
    [[nodiscard]] CGRect untransformedFrame() const; ///< where it would be without its transform
    void setFrame(const CGRect& frame);              ///< \pre the transform flattens nothing
    [[nodiscard]] CGPoint position() const;
    void setPosition(CGPoint position);
    void setBoundsOrigin(CGPoint origin);
    void setBoundsSize(CGSize size);
    [[nodiscard]] AffineTransform transform() const;
    void setTransform(const AffineTransform& transform);
    void setColor(LayerProperty property, const ColorComponents& color);
    [[nodiscard]] ColorComponents color(LayerProperty property) const;
    void setNumber(LayerProperty property, double number);

    [[nodiscard]] double number(LayerProperty property) const { return value(property)[0]; }

    /// From the layer's bounds to its superlayer's, as set and as shown.
    [[nodiscard]] AffineTransform toSuperlayer() const;
    [[nodiscard]] AffineTransform shownToSuperlayer() const;

    /// Where it is shown in the outermost layer's superlayer, which is the screen for what is in a window.
    [[nodiscard]] ShownShape shownShapeOnScreen() const;
    [[nodiscard]] CGRect shownBounds() const;

    // What is not animated.
    bool hidden = false;
    bool masksToBounds = false;
    bool continuousCorners = false;
    bool roundTop = true;    ///< whether the corner radius is for the upper corners
    bool roundBottom = true; ///< and for the lower ones
    /// Whether it is painted by way of a picture of it with all within it, at whole pixels, which is kept
    /// while nothing in it changes. For what is moved, and has no backdrop that shows what lies behind it.
    bool keepsPicture = false;
    CGPoint anchorPoint{0.5, 0.5};
    std::optional<Backdrop> backdrop;
    std::optional<QPainterPath> shadowPath;
    LayerDelegate* delegate = nullptr; ///< outlives the layer, or takes itself away

    /// What the delegate would paint has changed.
    void setNeedsDisplay() { ++contentVersion_; }

    [[nodiscard]] std::uint64_t contentVersion() const { return contentVersion_; }

private:
    void animate(const LayerValue& distance, LayerProperty property);
    void takeAway(LayerProperty property);
    void forgetEnded();

    CALayer& layer_;
    const std::uint64_t identity_;
    CALayer* superlayer_ = nullptr;
    std::vector<Ref<CALayer>> sublayers_;
    std::array<LayerValue, layerPropertyCount> values_ = defaultValues();
    std::vector<LayerAnimation> animations_;
    std::uint64_t contentVersion_ = 0;

    static std::array<LayerValue, layerPropertyCount> defaultValues();
};
