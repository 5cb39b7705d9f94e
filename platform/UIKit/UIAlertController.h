#pragma once

#include "UIKit/UIAlertAction.h"
#include "UIKit/UIViewController.h"

#include <memory>
#include <optional>
#include <string>

/// The kind of alert. The number is the platform's.
enum class UIAlertControllerStyle : int { Alert = 1 };

/// A short message in the middle of the screen with a button for each answer, which take it away. Made by
/// `alertControllerWithTitle`, shown by presenting it.
class UIAlertController : public UIViewController {
public:
    [[nodiscard]] static Ref<UIAlertController>
    alertControllerWithTitle(const std::optional<std::string>& title,
                             const std::optional<std::string>& message,
                             UIAlertControllerStyle preferredStyle);

    /// Two buttons that fit are beside each other, the one that cancels first; others below each other, the
    /// one that cancels last. A second one that cancels is refused, and the refusal logged.
    void addAction(const Ref<UIAlertAction>& action);

protected:
    explicit UIAlertController(std::unique_ptr<UIViewControllerPeer> peer);
};
