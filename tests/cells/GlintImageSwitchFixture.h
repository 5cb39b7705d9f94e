#pragma once

#include "GlintImageSwitch.h"
#include "Phone.h"
#include "views/UIViewPeer.h"

/// Counts the value-changed events of the control that it is a target of.
class EventCounter final : public NSObject {
public:
    void valueChanged(const Ref<NSObject>& sender);

    int count = 0;
    Ref<NSObject> lastSender;
};

/// A switch of 50 x 30 points at the place `origin` of a phone's screen, and a finger.
class GlintImageSwitchFixture : public Phone {
protected:
    static constexpr CGPoint origin{100, 200};
    static constexpr auto restingOff = CGRectMake(1, 1, 28, 28);
    static constexpr auto restingOn = CGRectMake(21, 1, 28, 28);
    static constexpr auto pressedOff = CGRectMake(1, 1, 33, 28);
    static constexpr auto pressedOn = CGRectMake(16, 1, 33, 28);

    GlintImageSwitchFixture();

    // The finger, by its place across the switch; half-way down it.
    void down(double x) { touch(TouchPhase::Began, x); }

    void move(double x) { touch(TouchPhase::Moved, x); }

    void up(double x) { touch(TouchPhase::Ended, x); }

    void cancel(double x) { touch(TouchPhase::Cancelled, x); }

    void tap() {
        down(25);
        up(25);
    }

    [[nodiscard]] CGRect thumbFrame() const { return control->thumbView()->frame(); }

    /// What is on screen of the thumb's left edge.
    [[nodiscard]] double shownThumbLeft() const;
    [[nodiscard]] double shownThumbWidth() const;

    [[nodiscard]] Ref<UIColor> trackColor() const {
        return control->backgroundView()->peer().backgroundColor();
    }

    [[nodiscard]] Ref<UIColor> thumbColor() const { return control->thumbView()->peer().backgroundColor(); }

    /// The views of the images on the two parts of the track, and in the thumb.
    [[nodiscard]] Ref<UIImageView> onImageView() const;
    [[nodiscard]] Ref<UIImageView> offImageView() const;
    [[nodiscard]] Ref<UIImageView> thumbImageView() const;

    /// Expects what the track carries for one of the states to be shown, and what it carries for the other
    /// not.
    void expectTrackContents(bool on) const;

    /// Whether the track's border, or the thumb's shadow, has the components of a colour.
    [[nodiscard]] bool borderIs(const Ref<UIColor>& color) const;
    [[nodiscard]] bool shadowIs(const Ref<UIColor>& color) const;

    Ref<GlintImageSwitch> control = make<GlintImageSwitch>();
    Ref<EventCounter> events = make<EventCounter>();

private:
    void touch(TouchPhase phase, double x) { finger.touch(phase, {origin.x + x, origin.y + 15}); }
};
