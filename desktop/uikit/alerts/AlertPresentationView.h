#pragma once

#include "presentation/PresentationView.h"

class AlertView;
class UIAlertControllerPeer;

/// A presented alert in the middle of the screen. Made by the alert controller's peer.
class AlertPresentationView final : public PresentationView {
public:
    /// \pre the controller's peer is a UIAlertControllerPeer
    explicit AlertPresentationView(UIViewController& controller);

    // PresentationView:
    void showReadyToOpen() override;
    void showOpened() override;
    void showClosed() override;
    [[nodiscard]] AnimationGroup::Course openingCourse() const override;
    [[nodiscard]] AnimationGroup::Course closingCourse() const override;

    [[nodiscard]] bool stepsBack() const override { return false; }

    // Presented:
    [[nodiscard]] std::string_view kind() const override { return "alert"; }

    [[nodiscard]] std::string title() const override;
    [[nodiscard]] std::vector<Action> actions() const override;
    [[nodiscard]] std::optional<Details> details() const override;

    [[nodiscard]] std::optional<ShownShape> steppedBack() const override { return std::nullopt; }

    [[nodiscard]] UIView& shownView() const override;
    /// Chooses what cancels; nothing happens when nothing does.
    void dismissPresented() override;

    // UIView:
    void layoutSubviews() override;

private:
    /// \param scale of the panel; \param alpha of everything
    void show(double scale, double alpha);

    Ref<UIView> dimming_;
    Ref<AlertView> alert_;
};
