#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Foundation/NSCoder.h"
#include "QuartzCore/CALayer.h"
#include "UIKit/UIColor.h"
#include "UIKit/UIResponder.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class NSLayoutDimension;
class NSLayoutXAxisAnchor;
class NSLayoutYAxisAnchor;
class UILayoutGuide;
class UITapGestureRecognizer;
class UIViewController;

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
    void setCenter(CGPoint center);

    /// Empty for none.
    void setBackgroundColor(const Ref<UIColor>& color);
    /// The colour of symbols and template images in the view and in those within it that have no tint of
    /// their own. An empty one is the superview's.
    void setTintColor(const Ref<UIColor>& color);
    /// The nearest one set at the view or above it, else the platform's.
    [[nodiscard]] Ref<UIColor> tintColor() const;
    /// 0..1, for the view with its subviews.
    void setAlpha(double alpha);
    void setContentMode(UIViewContentMode mode);
    void setClipsToBounds(bool clips);
    void setUserInteractionEnabled(bool enabled);
    void setAutoresizingMask(UIViewAutoresizing mask);
    [[nodiscard]] CALayer& layer() const;
    /// What the view is called to somebody who does not see it; absent for what it shows.
    void setAccessibilityLabel(const std::optional<std::string>& label);
    /// A number of the caller's own.
    void setTag(int tag);
    /// Has the recogniser watch the touches in the view and those within it.
    void addGestureRecognizer(const Ref<UITapGestureRecognizer>& recognizer);

    /// Puts a view above the other subviews, taking it away from its present superview.
    void addSubview(const Ref<UIView>& view);
    /// Likewise at a place among the subviews, 0 being beneath all others. A place beyond the end is the end.
    void insertSubview(const Ref<UIView>& view, std::size_t index);
    /// The lowest first.
    [[nodiscard]] std::vector<Ref<UIView>> subviews() const;
    /// Empty when the view is in none.
    [[nodiscard]] Ref<UIView> superview() const;
    /// The nearest controller whose view this is or lies in; empty when there is none.
    [[nodiscard]] Ref<UIViewController> _viewControllerForAncestor() const;

    /// Whether the frame holds as it is set, as it does at first; else constraints decide it.
    void setTranslatesAutoresizingMaskIntoConstraints(bool translates);
    [[nodiscard]] Ref<NSLayoutXAxisAnchor> leadingAnchor() const;
    [[nodiscard]] Ref<NSLayoutXAxisAnchor> trailingAnchor() const;
    [[nodiscard]] Ref<NSLayoutXAxisAnchor> centerXAnchor() const;
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> topAnchor() const;
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> bottomAnchor() const;
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> centerYAnchor() const;
    [[nodiscard]] Ref<NSLayoutDimension> widthAnchor() const;
    [[nodiscard]] Ref<NSLayoutDimension> heightAnchor() const;
    /// What the bars and the device's own edges leave uncovered.
    [[nodiscard]] Ref<UILayoutGuide> safeAreaLayoutGuide() const;
    /// What a layout within the view keeps away from its edges where it heeds margins; 8 points at first.
    void setLayoutMargins(const UIEdgeInsets& margins);

    /// Places the subviews. Called before the view is drawn when its size or its subviews have changed.
    virtual void layoutSubviews();
    /// The view's tint is another one now. An override calls its base.
    virtual void tintColorDidChange();
    /// The view has got another superview, or none. An override calls its base.
    virtual void didMoveToSuperview();

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
