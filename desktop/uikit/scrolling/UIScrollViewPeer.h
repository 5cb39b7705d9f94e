#pragma once

#include "UIKit/UIScrollView.h"
#include "scrolling/ScrollMotion.h"
#include "scrolling/ScrollPanGestureRecognizer.h"
#include "views/UIViewPeer.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class ScrollIndicators;

/// The desktop's half of a scroll view: where its contents stand, which is its bounds' origin, and how they
/// move. A derived peer overrides the hooks; overrides of the `UIViewPeer` functions call their base.
class UIScrollViewPeer : public UIViewPeer {
public:
    using Object = UIScrollView;

    UIScrollViewPeer();
    ~UIScrollViewPeer() override;

    [[nodiscard]] CGSize contentSize() const { return contentSize_; }

    /// Contents at rest that would stand beyond an edge then move within it at once.
    void setContentSize(CGSize size);

    [[nodiscard]] CGPoint contentOffset() const;
    /// Ends the motion there is, and moves there at once or in a short time; nothing holds the offset within
    /// the edges. A drag goes on from there.
    void setContentOffset(CGPoint offset, bool animated = false);

    [[nodiscard]] const UIEdgeInsets& contentInset() const { return contentInset_; }

    void setContentInset(const UIEdgeInsets& inset);
    /// The content inset and what the safe area adds to it above and below. The contents start at minus that.
    [[nodiscard]] UIEdgeInsets adjustedContentInset() const;

    /// The least and the greatest offset at which nothing is drawn beyond an edge.
    [[nodiscard]] CGPoint minimumOffset() const;
    [[nodiscard]] CGPoint maximumOffset() const;

    /// Moves by as little as brings the rectangle, of the contents, into view.
    void scrollRectToVisible(const CGRect& rect, bool animated);
    /// Moves the offset at once by what a wheel or a touch pad says, within the edges.
    void scrollBy(CGPoint distance);

    /// Whether contents that fit are moved nevertheless, and spring back. Off.
    void setAlwaysBounceVertical(bool bounces) { alwaysBounceVertical_ = bounces; }

    [[nodiscard]] PanGestureRecognizer& panGestureRecognizer() const { return *pan_; }

    /// Whether a finger moves the contents.
    [[nodiscard]] bool isDragging() const { return dragStart_.has_value(); }

    /// Whether the contents move by themselves.
    [[nodiscard]] bool isMoving() const { return motion_.has_value(); }

    /// Whether a drag by that much would move anything, by its greater part.
    [[nodiscard]] bool canScrollAlong(CGPoint movement) const;

    /// For others than the derived peer: called whenever the offset has changed.
    void addScrollHandler(std::function<void()> handler);
    /// Called when a finger that dragged is lifted. `target` is where the contents will come to rest, and may
    /// be changed.
    void addReleaseHandler(std::function<void(CGPoint& target)> handler);

    // Hooks.
    /// Whether a drag takes the touch from `content`, which has had it. Not from a control, nor from what is
    /// within one.
    [[nodiscard]] virtual bool touchesShouldCancelIn(const UIView& content) const;

    virtual void didScroll() {}

    // UIViewPeer:
    void layoutSubviews() override;
    void safeAreaInsetsDidChange() override;
    void didMoveToWindow() override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

private:
    friend class UIScrollView;

    struct Motion {
        ScrollMotion x;
        ScrollMotion y;
        std::chrono::nanoseconds begin; ///< uptime
    };

    void viewMade();
    void moveTo(CGPoint offset);
    void panned();
    void beginDrag();
    void drag();
    void endDrag(CGPoint velocity);
    void start(const ScrollMotion& x, const ScrollMotion& y);
    void scheduleTick();
    void tick();
    void comeToRest();
    void stopMotion();
    void keepWithinEdges();
    void followInsets();
    [[nodiscard]] CGPoint clamped(CGPoint offset) const;
    [[nodiscard]] bool scrollsHorizontally() const;
    [[nodiscard]] bool scrollsVertically() const;
    [[nodiscard]] CGPoint banded(CGPoint offset) const;
    [[nodiscard]] CGPoint unbanded(CGPoint offset) const;

    CGSize contentSize_;
    UIEdgeInsets contentInset_;
    UIEdgeInsets followedInset_; ///< the adjusted inset that the offset was last brought in line with
    CGSize followedSize_;        ///< likewise the view's size
    Ref<ScrollPanGestureRecognizer> pan_;
    std::unique_ptr<ScrollIndicators> indicators_;
    std::optional<CGPoint> dragStart_; ///< the offset, were there no resistance, that the drag began with
    std::optional<Motion> motion_;
    std::vector<std::function<void()>> scrollHandlers_;
    std::vector<std::function<void(CGPoint& target)>> releaseHandlers_;
    unsigned ticking_ = 0; ///< which motion the ticks are for
    bool alwaysBounceVertical_ = false;
};
