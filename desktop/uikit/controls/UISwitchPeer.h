#pragma once

#include "UIKit/UISwitch.h"
#include "controls/UIControlPeer.h"

/// The desktop's half of a switch: whether it is on, its thumb, and the finger on it. Made with the switch.
class UISwitchPeer : public UIControlPeer {
public:
    using Object = UISwitch;

    static constexpr CGSize size{51, 31};

    /// Makes the switch's views; called once, by its constructor.
    void setUp();

    [[nodiscard]] bool isOn() const { return on_; }

    /// Sends no action.
    void setOn(bool on, bool animated);

    // UIControlPeer:
    void stateDidChange() override;

    // UIViewPeer:
    void layoutSubviews() override;
    void traitsDidChange() override;
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicWidth() const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

private:
    /// A finger that handles the switch.
    struct Tracking {
        double start; ///< where it came down, across the switch
        bool onAtStart;
        bool moved = false; ///< so far that it is no tap
    };

    void follow(const DesktopTouch& touch);
    void release();
    void giveUp();
    [[nodiscard]] CGRect thumbFrame() const;
    void show();
    void showAnimated();

    Ref<UIView> track_;
    Ref<UIView> shade_; ///< the wider of the thumb's two shadows
    Ref<UIView> thumb_;
    std::optional<Tracking> tracking_;
    bool on_ = false;
};
