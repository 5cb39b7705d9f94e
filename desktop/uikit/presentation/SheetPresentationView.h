#pragma once

#include "UIKit/UIControl.h"
#include "presentation/PresentationView.h"
#include "presentation/PresentedPage.h"
#include "presentation/SheetGeometry.h"

class SheetPanGestureRecognizer;

/// A presented controller as a card above what it covers, which a finger may draw down. Made by the
/// controller's peer.
class SheetPresentationView final : public PresentationView {
public:
    explicit SheetPresentationView(UIViewController& controller);

    /// How much of the card is in sight: 0 for none, 1 for all, more while it is drawn up.
    [[nodiscard]] double openness() const { return openness_; }

    // For the recogniser.
    /// \param distance of the finger, downward
    void drag(double distance);
    /// \param speed of the finger, points a second
    void letGo(double distance, double speed);

    // PresentationView:
    void showReadyToOpen() override { setOpenness(0); }

    void showOpened() override { setOpenness(1); }

    void showClosed() override { setOpenness(0); }

    [[nodiscard]] AnimationGroup::Course openingCourse() const override;

    [[nodiscard]] AnimationGroup::Course closingCourse() const override { return openingCourse(); }

    [[nodiscard]] bool stepsBack() const override { return true; }

    // Presented:
    [[nodiscard]] std::string_view kind() const override { return page().kind(); }

    [[nodiscard]] std::string title() const override { return page().title(); }

    /// What may be chosen there is in its items and its bar.
    [[nodiscard]] std::vector<Action> actions() const override { return {}; }

    [[nodiscard]] std::optional<Details> details() const override;

    [[nodiscard]] FilePicker* filePicker() const override { return page().filePicker(); }

    [[nodiscard]] UIView& shownView() const override { return *card_; }

    [[nodiscard]] std::optional<ShownShape> steppedBack() const override;

    /// As the user does it; nothing happens while the controller does not let him.
    void dismissPresented() override;

    // UIView:
    void layoutSubviews() override;

protected:
    // PresentationView:
    void didCover() override;
    void willUncover() override;

private:
    [[nodiscard]] bool isModal() const;
    [[nodiscard]] SheetGeometry geometry() const;

    [[nodiscard]] PresentedPage page() const { return PresentedPage(controller()); }

    void setOpenness(double openness);
    void placeCard();
    void place();
    [[nodiscard]] double cornerWhileClosed() const;

    Ref<UIView> backing_; ///< behind everything, where what is covered has stepped back
    /// Beneath the card, in what is behind everything: a card that blurs what it covers is not to take in the
    /// black beside that.
    Ref<UIView> sides_;
    Ref<UIControl> dimming_;
    Ref<UIView> card_;
    UIModalPresentationStyle style_;
    double openness_ = 0;
    double stretch_ = 0;       ///< by how much the card is drawn up
    double coveredCorner_ = 0; ///< of what is covered, as it was found
    bool coveredRoundsBottom_ = true;
    bool coveredClips_ = false;
};
