#pragma once

#include "UIKit/UILabel.h"
#include "controls/UIControlPeer.h"
#include "controls/UISegmentedControl.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// The desktop's half of a segmented control: its titles, which of them is chosen, and the finger on them.
/// Each title is an element of its own to those who do not see it. Made with the control.
class UISegmentedControlPeer : public UIControlPeer {
public:
    using Object = UISegmentedControl;

    static constexpr double height = 32;

    /// Makes the control's views; called once, by its constructor.
    void setUp();

    /// In place of those there are; none of them is chosen.
    void setTitles(const std::vector<std::string>& titles);

    [[nodiscard]] std::size_t segmentCount() const { return labels_.size(); }

    /// Nothing when none is.
    [[nodiscard]] std::optional<std::size_t> selected() const { return selected_; }

    /// Sends no action. A place beyond the end is none.
    void setSelected(std::optional<std::size_t> index, bool animated);

    /// In the control's bounds. \pre there is such a segment
    [[nodiscard]] CGRect segmentFrame(std::size_t index) const;

    // UIControlPeer:
    void stateDidChange() override;

    // UIViewPeer:
    void layoutSubviews() override;
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

private:
    /// A finger on the control.
    struct Press {
        std::optional<std::size_t> chosenBefore;
        bool carries; ///< it came down on the chosen one, which it takes along
    };

    [[nodiscard]] std::size_t segmentAt(const DesktopTouch& touch) const;
    void place();
    void placeThumb();
    void showState();
    void giveUp();

    Ref<UIView> thumb_;
    std::vector<Ref<UILabel>> labels_;
    std::vector<Ref<UIView>> dividers_; ///< each after the segment of its place
    std::optional<std::size_t> selected_;
    std::optional<Press> press_;
};
