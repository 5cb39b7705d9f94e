#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Foundation/NSCoder.h"
#include "QuartzCore/CALayer.h"
#include "UIKit/UIColor.h"
#include "UIKit/UIResponder.h"

#include <cstddef>
#include <functional>
#include <memory>

/// The platform's half of a view; each platform defines it.
class UIViewPeer;

/// How contents lie in a view that is not of their size. The numbers are the platform's.
enum class UIViewContentMode : int { ScaleToFill = 0, ScaleAspectFit = 1, ScaleAspectFill = 2, Center = 4 };

/// What follows the superview when its size changes; a set of flags with the platform's numbers.
enum class UIViewAutoresizing : unsigned {
    None = 0,
    FlexibleLeftMargin = 1U << 0U,
    FlexibleWidth = 1U << 1U,
    FlexibleRightMargin = 1U << 2U,
    FlexibleTopMargin = 1U << 3U,
    FlexibleHeight = 1U << 4U,
    FlexibleBottomMargin = 1U << 5U,
};

constexpr UIViewAutoresizing operator|(UIViewAutoresizing left, UIViewAutoresizing right) {
    return static_cast<UIViewAutoresizing>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}

/// How an animation runs. The numbers are the platform's.
enum class UIViewAnimationOptions : unsigned {
    None = 0,
    /// Starts from what is on screen, in place of animations that still run.
    BeginFromCurrentState = 1U << 2U,
};

/// A rectangle of the screen with its look and its subviews, which a superview keeps alive. A view does not
/// cut its subviews off unless told to. Frames are in points of the superview, bounds in the view's own. Main
/// thread only.
class UIView : public UIResponder {
public:
    UIView();

    /// `initWithFrame` with an empty rectangle.
    [[nodiscard]] bool init() override;
    [[nodiscard]] virtual bool initWithFrame(const CGRect& frame);
    [[nodiscard]] virtual bool initWithCoder(NSCoder& coder);

    [[nodiscard]] CGRect frame() const;
    void setFrame(const CGRect& frame);
    [[nodiscard]] CGRect bounds() const;
    [[nodiscard]] CGPoint center() const;
    void setCenter(CGPoint center);

    /// Empty when none was set.
    [[nodiscard]] Ref<UIColor> backgroundColor() const;
    void setBackgroundColor(const Ref<UIColor>& color);
    /// The colour of symbols and template images in the view and in those within it that have no tint of
    /// their own. An empty one is the superview's.
    void setTintColor(const Ref<UIColor>& color);
    /// 0..1, for the view with its subviews.
    [[nodiscard]] double alpha() const;
    void setAlpha(double alpha);
    void setContentMode(UIViewContentMode mode);
    void setClipsToBounds(bool clips);
    void setUserInteractionEnabled(bool enabled);
    void setAutoresizingMask(UIViewAutoresizing mask);
    [[nodiscard]] CALayer& layer() const;

    /// Puts a view above the other subviews, taking it away from its present superview.
    void addSubview(const Ref<UIView>& view);
    /// Likewise at a place among the subviews, 0 being beneath all others. A place beyond the end is the end.
    void insertSubview(const Ref<UIView>& view, std::size_t index);

    /// Places the subviews. Called before the view is drawn when its size or its subviews have changed.
    virtual void layoutSubviews();

    /// Runs `animations` at once and lets what it changes appear to go from the old values to the new ones.
    /// \param duration, delay in seconds
    /// \param completion called once, with false when another animation took this one's place before its end;
    ///     may be empty
    static void animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                    const std::function<void()>& animations,
                                    std::function<void(bool finished)> completion);

    /// For the platform's own code.
    [[nodiscard]] UIViewPeer& peer() const { return *peer_; }

protected:
    explicit UIView(std::unique_ptr<UIViewPeer> peer);
    ~UIView() override;

private:
    const std::unique_ptr<UIViewPeer> peer_;
};
