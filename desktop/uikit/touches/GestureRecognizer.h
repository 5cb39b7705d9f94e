#pragma once

#include "ObjectiveC/Ref.h"
#include "touches/DesktopTouch.h"
#include "views/AttachedRecognizer.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

class GestureArena;
class UIView;

/// Watches the touches in a view and those within it for one kind of movement. Added to a view, which keeps
/// it alive. The kinds derive from it and say, by the protected functions, how far they have come.
class GestureRecognizer : public AttachedRecognizer {
public:
    enum class State {
        Possible, ///< nothing recognised yet
        Began,    ///< a gesture that lasts has been recognised
        Changed,
        Ended, ///< the gesture is over; for one that does not last: recognised
        Cancelled,
        Failed
    };

    ~GestureRecognizer() override;

    [[nodiscard]] State state() const { return state_; }

    /// Null once the view is gone.
    [[nodiscard]] UIView* view() const { return view_; }

    [[nodiscard]] bool isEnabled() const { return enabled_; }

    /// Switching a recogniser off cancels its gesture.
    void setEnabled(bool enabled);

    /// Calls `handler` whenever the gesture is recognised, changes, ends or is cancelled.
    void addHandler(std::function<void()> handler);

    /// Where the finger is, or was last, in points of the screen.
    [[nodiscard]] CGPoint location() const { return location_; }

    // What a kind may decide. All are asked with the touch known.
    /// Whether it follows a touch that comes down.
    [[nodiscard]] virtual bool receives(const DesktopTouch& /*touch*/) const { return true; }

    /// Whether it leaves touches in controls within its view to them.
    [[nodiscard]] virtual bool yieldsToControls() const { return false; }

    /// Whether the gesture, which is there, may be recognised; it fails when not.
    [[nodiscard]] virtual bool shouldBegin() { return true; }

    /// Whether the other one, of the same touch, is only recognised once this has failed.
    [[nodiscard]] virtual bool goesBefore(const GestureRecognizer& /*other*/) const { return false; }

    /// How long views within the recogniser's view wait for the touch.
    [[nodiscard]] virtual std::chrono::nanoseconds contentTouchDelay() const { return {}; }

    // AttachedRecognizer:
    void attachTo(UIView& view) override { view_ = &view; }

    /// The gesture ends without a word.
    void viewIsGone() override;

    // For the arena.
    /// Follows the touch from here on; `fingerCameDown` is next.
    void follow(GestureArena& arena, DesktopTouch& touch);

    [[nodiscard]] bool isFollowing() const { return static_cast<bool>(touch_); }

    [[nodiscard]] bool isFollowing(const DesktopTouch& touch) const { return touch_.get() == &touch; }

    void fingerCameDown(DesktopTouch& touch);
    void fingerMoved(DesktopTouch& touch);
    void fingerLifted(DesktopTouch& touch);
    /// Ends the gesture, if there is one, as cancelled, and follows the touch no more.
    void loseTouch();
    /// The gesture ends without a word.
    void leaveArena();

    [[nodiscard]] bool isUndecided() const { return state_ == State::Possible && arena_ != nullptr; }

    /// Whether the gesture is there and waits for others to fail.
    [[nodiscard]] bool isWaiting() const { return wanted_.has_value(); }

    /// Recognises a gesture that has waited, now that nothing goes before it.
    void recognizeWaiting();
    /// The gesture is not to be.
    void fail();

protected:
    GestureRecognizer() = default;

    virtual void touchBegan(DesktopTouch& touch) = 0;
    virtual void touchMoved(DesktopTouch& touch) = 0;
    virtual void touchEnded(DesktopTouch& touch) = 0;

    /// The gesture is over, however it ended; the next one starts from nothing.
    virtual void didReset() {}

    /// The touch followed; null when there is none.
    [[nodiscard]] const DesktopTouch* touch() const { return touch_.get(); }

    // Steps of a gesture; each does nothing where it makes no sense.
    void begin() { want(State::Began); }

    void recognize() { want(State::Ended); }

    void change();
    void end();
    void cancel();

private:
    void want(State state);
    void enter(State state);
    void tell();
    [[nodiscard]] bool isOver() const;
    void resetIfOver();
    void reset();

    UIView* view_ = nullptr;
    GestureArena* arena_ = nullptr; ///< while it takes part
    Ref<DesktopTouch> touch_;
    CGPoint location_;
    State state_ = State::Possible;
    std::optional<State> wanted_;
    std::vector<std::function<void()>> handlers_;
    bool enabled_ = true;
};
