#pragma once

#include "CALayerPeer.h"
#include "Foundation/PropertyList.h"
#include "LayerDelegate.h"
#include "Traits.h"
#include "UIKit/UIView.h"
#include "objects/PeerOf.h"
#include "views/Accessibility.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class AttachedRecognizer;
class DesktopTouch;
class UIEvent;
class LayoutProblem;
class UIViewController;
class UIWindow;
class ViewOwner;
struct ViewLayout;

/// The desktop's half of a view: its place in the tree and all that the engine asks of a view and the pane
/// does not. Views of the engine's own derive theirs from it and override what they do differently.
class UIViewPeer : public LayerDelegate {
public:
    using Object = UIView;

    UIViewPeer();
    ~UIViewPeer() override;
    UIViewPeer(const UIViewPeer&) = delete;
    UIViewPeer& operator=(const UIViewPeer&) = delete;

    /// The view that the peer belongs to; set by the view's constructor.
    [[nodiscard]] UIView& view() const { return *view_; }

    [[nodiscard]] CALayer& layer() const { return *layer_; }

    // The tree. Subviews' layers stand among the layer's sublayers in the same order.
    [[nodiscard]] UIView* superview() const { return superview_; }

    [[nodiscard]] const std::vector<Ref<UIView>>& subviews() const { return subviews_; }

    /// Takes the view away from its present superview. A place beyond the end is the end.
    void insertSubview(const Ref<UIView>& subview, std::size_t index);

    void addSubview(const Ref<UIView>& subview) { insertSubview(subview, subviews_.size()); }

    void bringSubviewToFront(const UIView& subview);
    void removeFromSuperview();
    [[nodiscard]] bool isDescendantOf(const UIView& ancestor) const;
    /// The window that the view is in; null when it is in none.
    [[nodiscard]] virtual UIWindow* window() const;

    /// The controller whose view this is; null when it is none's.
    [[nodiscard]] UIViewController* controller() const;

    /// Null for none.
    void setOwner(ViewOwner* owner) { owner_ = owner; }

    // Geometry.
    [[nodiscard]] CGPoint convertToScreen(CGPoint point) const;
    [[nodiscard]] CGPoint convertFromScreen(CGPoint point) const;
    [[nodiscard]] CGRect convertToScreen(const CGRect& rect) const;
    /// From this view's points to another's.
    [[nodiscard]] CGPoint convertTo(const UIView& other, CGPoint point) const;
    [[nodiscard]] CGRect convertTo(const UIView& other, const CGRect& rect) const;
    void setBounds(const CGRect& bounds);
    void setTransform(const AffineTransform& transform);

    [[nodiscard]] bool isHidden() const { return layerPeer().hidden; }

    void setHidden(bool hidden);

    // Layout.
    void setNeedsLayout();

    /// What `UIView::layoutSubviews` does.
    virtual void layoutSubviews() {}

    /// Lays out what needs it in this view and below.
    void layoutIfNeeded();
    /// How the view takes part in the layout by constraints.
    [[nodiscard]] ViewLayout& layoutRules() const;
    /// Whether the frame is given and constraints leave it alone, as is so until told otherwise.
    [[nodiscard]] bool isFrameGiven() const;
    void setFrameGiven(bool given);

    /// What a view asks of the views within it, beside the constraints that it holds.
    virtual void addOwnConstraints(LayoutProblem& /*problem*/) const {}

    /// The constraints that place the view, or what they depend on, have changed: its intrinsic size too.
    void setNeedsConstraintLayout();
    /// The size that the constraints within the view give it.
    /// \param width in points; without one, as narrow as they allow
    [[nodiscard]] CGSize fittingSize(std::optional<double> width) const;
    /// The size that suits the view's contents; by default the bounds' own.
    [[nodiscard]] virtual CGSize sizeThatFits(CGSize room) const;

    /// Absent where the view has none.
    [[nodiscard]] virtual std::optional<double> intrinsicWidth() const { return std::nullopt; }

    [[nodiscard]] virtual std::optional<double> intrinsicHeight() const { return std::nullopt; }

    /// The width that a layout gives the view. \returns whether its intrinsic height may be another now
    virtual bool takeLayoutWidth(double /*width*/) { return false; }

    void sizeToFit();
    /// What the bars and the device's own edges cover of the view.
    [[nodiscard]] UIEdgeInsets safeAreaInsets() const;
    /// Further insets for this view and those within it.
    void setAdditionalSafeAreaInsets(const UIEdgeInsets& insets);

    /// Called when they are set, and before a layout that finds them changed by a move.
    virtual void safeAreaInsetsDidChange() {}

    // The direction of reading.
    [[nodiscard]] bool isRightToLeft() const { return traits().rightToLeft; }

    /// Of a movement to the right along the way from the leading edge to the trailing one: 1, or -1.
    [[nodiscard]] double rightward() const { return isRightToLeft() ? -1 : 1; }

    /// What is given from the view's leading edge, from its left one; and back, which is the same.
    [[nodiscard]] CGRect fromLeading(const CGRect& rect) const;
    [[nodiscard]] CGPoint fromLeading(CGPoint point) const;
    /// Gives a view within this one its frame. \param frame from the leading edge
    void place(UIView& subview, const CGRect& frame) const;

    // Looks.
    [[nodiscard]] Traits traits() const;
    /// What this view and those within it see differently.
    void setTraitOverride(std::function<void(Traits&)> change);
    /// The traits have changed, of the device or by a move in the tree.
    virtual void traitsDidChange();
    /// The nearest tint set at the view or above it; the system's blue when there is none.
    [[nodiscard]] Ref<UIColor> tintColor() const;

    /// The one set at this view; empty when there is none.
    [[nodiscard]] const Ref<UIColor>& ownTintColor() const { return tintColor_; }

    void setTintColor(const Ref<UIColor>& color);

    /// What `UIView::tintColorDidChange` does. What shows the tint is painted again by whoever paints it.
    virtual void tintColorDidChange() {}

    /// Whether this view and those within it are grey where they would be tinted, as what something modal
    /// covers is. Not so until it is told.
    void setTintDimmed(bool dimmed);

    /// The number that was given to the view; 0 before.
    [[nodiscard]] int tag() const { return tag_; }

    void setTag(int tag) { tag_ = tag; }

    [[nodiscard]] const Ref<UIColor>& backgroundColor() const { return backgroundColor_; }

    void setBackgroundColor(const Ref<UIColor>& color);

    [[nodiscard]] UIViewContentMode contentMode() const { return contentMode_; }

    void setContentMode(UIViewContentMode mode);

    void setNeedsDisplay() { layerPeer().setNeedsDisplay(); }

    /// Tells the owners of this view and of those within it.
    void keyboardDidChange() const;

    // Touches.
    [[nodiscard]] bool isUserInteractionEnabled() const { return userInteractionEnabled_; }

    void setUserInteractionEnabled(bool enabled);

    /// The frontmost view at the point that takes touches: this one or one within it; null when none does.
    [[nodiscard]] virtual UIView* hitTest(CGPoint point);
    [[nodiscard]] virtual bool pointInside(CGPoint point) const;
    virtual void touchBegan(DesktopTouch& touch, UIEvent& event);
    virtual void touchMoved(DesktopTouch& touch, UIEvent& event);
    virtual void touchEnded(DesktopTouch& touch, UIEvent& event);
    virtual void touchCancelled(DesktopTouch& touch, UIEvent& event);
    void addGestureRecognizer(const Ref<AttachedRecognizer>& recognizer);

    [[nodiscard]] const std::vector<Ref<AttachedRecognizer>>& gestureRecognizers() const {
        return gestureRecognizers_;
    }

    // The tree's changes.
    /// The view has come into a window or left one.
    virtual void didMoveToWindow() {}

    /// What `UIView::didMoveToSuperview` does.
    virtual void didMoveToSuperview() {}

    // What it tells of itself.
    [[nodiscard]] virtual Accessibility accessibility() const { return accessibility_; }

    void setAccessibility(Accessibility accessibility) { accessibility_ = std::move(accessibility); }

    void setAccessibilityLabel(std::string label) { accessibility_.label = std::move(label); }

    /// The view's own text, as shown; nothing when it shows none.
    [[nodiscard]] virtual std::optional<std::string> shownText() const { return std::nullopt; }

    /// What scripts may look at beside the view's place and layer, by name.
    [[nodiscard]] virtual PropertyList::Dictionary inspectedProperties() const;

    [[nodiscard]] UIViewAutoresizing autoresizingMask() const { return autoresizingMask_; }

    void setAutoresizingMask(UIViewAutoresizing mask) { autoresizingMask_ = mask; }

    void setFrame(const CGRect& frame);
    void setCenter(CGPoint center);

    // What the window that the view is in does for it; nothing outside a window.
    /// Has what needs it laid out before the next picture.
    virtual void scheduleLayout();
    /// Takes the touch under way away from a view and those within it.
    virtual void cancelTouchesIn(UIView& view);

    // LayerDelegate:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;

    [[nodiscard]] Traits layerTraits() const override { return traits(); }

private:
    friend class UIView;

    [[nodiscard]] CALayerPeer& layerPeer() const;
    /// Places the subviews that constraints place.
    void layOutByConstraints();
    void boundsChanged(CGSize before);
    void autoresize(CGSize before, CGSize after);
    [[nodiscard]] AffineTransform toScreen() const;
    /// Where the layer of a subview that is to stand at a place belongs, without the subview's own.
    [[nodiscard]] std::size_t layerPlace(const UIViewPeer& subview, std::size_t place) const;
    [[nodiscard]] UIEdgeInsets coveredBySuperview() const;
    void noteSafeArea();
    void noteSafeAreaOfAll();
    void movedInTree(const UIWindow* before);
    void movedToWindow();
    [[nodiscard]] bool isTintDimmed() const;
    /// Tells the view, and those that inherit its tint, that it is another one now.
    void tellOfTint() const;
    /// Of a change of their tint, which those that inherit theirs have heard of.
    void tellViewsOfOwnTint() const;
    void resolveColors();

    UIView* view_ = nullptr;
    Ref<CALayer> layer_;
    UIView* superview_ = nullptr;
    std::vector<Ref<UIView>> subviews_;
    ViewOwner* owner_ = nullptr;
    Ref<UIColor> backgroundColor_;
    Ref<UIColor> tintColor_;
    std::vector<Ref<AttachedRecognizer>> gestureRecognizers_;
    std::function<void(Traits&)> traitOverride_;
    UIEdgeInsets additionalSafeAreaInsets_;
    UIEdgeInsets notedSafeAreaInsets_; ///< that the view was told of last
    Accessibility accessibility_;
    std::unique_ptr<ViewLayout> layout_;
    UIViewContentMode contentMode_ = UIViewContentMode::ScaleToFill;
    UIViewAutoresizing autoresizingMask_ = UIViewAutoresizing::None;
    int tag_ = 0;
    bool userInteractionEnabled_ = true;
    bool tintDimmed_ = false;
    bool needsLayout_ = true;
};
