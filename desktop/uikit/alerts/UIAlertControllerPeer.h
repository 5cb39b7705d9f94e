#pragma once

#include "UIKit/UIAlertController.h"
#include "alerts/AlertView.h"
#include "controllers/UIViewControllerPeer.h"

#include <optional>
#include <string>
#include <vector>

/// The desktop's half of an alert controller: its texts and buttons. Its view is an `AlertView`. Made with
/// the controller.
class UIAlertControllerPeer final : public UIViewControllerPeer {
public:
    using Object = UIAlertController;

    explicit UIAlertControllerPeer(std::optional<std::string> message) : message_(std::move(message)) {}

    [[nodiscard]] const std::optional<std::string>& message() const { return message_; }

    void addAction(const Ref<DesktopAlertAction>& action);

    /// Takes the alert away and then runs the action. Nothing happens while it is on its way in or out.
    void choose(const Ref<DesktopAlertAction>& action);

    /// As a user does who does not want to decide: chooses what cancels, if there is that.
    void chooseCancel();

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    [[nodiscard]] Ref<PresentationView> makePresentationView() override;

private:
    std::optional<std::string> message_;
    std::vector<Ref<DesktopAlertAction>> actions_; ///< in the order in which they were added
};
