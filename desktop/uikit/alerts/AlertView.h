#pragma once

#include "UIKit/UIControl.h"
#include "alerts/AlertButtonView.h"
#include "alerts/AlertLayout.h"
#include "alerts/AlertTextView.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The panel of an alert: its texts, its buttons, and the finger that moves over them, wherever it came down.
/// The view of an alert controller, made by it.
class AlertView final : public UIControl {
public:
    using Chosen = std::function<void(const Ref<DesktopAlertAction>& action)>;

    static constexpr double cornerRadius = 14;

    /// \param chosen called when a finger was lifted over a button
    AlertView(const std::string& title, const std::optional<std::string>& message, Chosen chosen);

    /// In the order in which they were added.
    void setActions(const std::vector<Ref<DesktopAlertAction>>& actions);

    /// As they are shown.
    [[nodiscard]] const std::vector<Ref<AlertButtonView>>& buttons() const { return buttons_; }

    /// The height with all of the texts.
    [[nodiscard]] double fullHeight() const;

    // UIControl:
    bool beginTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    bool continueTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void endTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void cancelTrackingWithEvent(UIEvent* event) override;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] AlertLayout buttonLayout() const;
    void sortButtons();
    /// Null when there is none.
    [[nodiscard]] AlertButtonView* buttonAt(CGPoint place) const;
    void highlight(const AlertButtonView* touched);

    Chosen chosen_;
    Ref<UIView> blur_;
    Ref<UIView> tint_;
    Ref<AlertTextView> texts_;
    std::vector<Ref<AlertButtonView>> added_; ///< in that order
    std::vector<Ref<AlertButtonView>> buttons_;
};
