#pragma once

#include "alerts/AlertChoicesView.h"
#include "alerts/AlertTextView.h"
#include "scrolling/ChoicePanel.h"

#include <optional>
#include <string>
#include <vector>

/// The panel of an alert: its texts, and its buttons, which a finger chooses from wherever it came down.
/// Where there is no room for all, both scroll. The view of an alert controller, made by it.
class AlertView final : public ChoicePanel {
public:
    using Chosen = AlertChoicesView::Chosen;

    static constexpr double cornerRadius = 14;

    /// \param chosen called when a finger was lifted over a button
    AlertView(const std::string& title, const std::optional<std::string>& message, Chosen chosen);

    /// In the order in which they were added.
    void setActions(const std::vector<Ref<DesktopAlertAction>>& actions);

    /// As they are shown.
    [[nodiscard]] const std::vector<Ref<AlertButtonView>>& buttons() const { return choices_->buttons(); }

    /// The height with all of the texts and buttons.
    [[nodiscard]] double fullHeight() const;

    // UIView:
    void layoutSubviews() override;

private:
    AlertView(const std::string& title, const std::optional<std::string>& message,
              const Ref<AlertChoicesView>& choices);

    /// Of the buttons, in an alert of that height: all that is left, and half of it where that is less.
    [[nodiscard]] double choicesHeight(double height) const;

    Ref<UIView> blur_;
    Ref<AlertTextView> texts_;
    Ref<AlertChoicesView> choices_;
};
