#pragma once

#include "UIKit/UIView.h"
#include "screen/Presented.h"
#include "screen/Screen.h"

#include <optional>
#include <string>
#include <vector>

/// A view that is presented with what is in it, where a test needs something presented but no controller.
/// What it tells is what the test sets; what it is told it notes.
class PresentedStandIn final : public UIView, public Presented {
public:
    // Presented:
    [[nodiscard]] std::string_view kind() const override { return "menu"; }

    [[nodiscard]] std::string title() const override { return "Stand-in"; }

    [[nodiscard]] std::vector<Action> actions() const override { return shownActions; }

    [[nodiscard]] std::optional<Details> details() const override { return std::nullopt; }

    [[nodiscard]] FilePicker* filePicker() const override { return nullptr; }

    [[nodiscard]] bool isTransient() const override { return transient; }

    [[nodiscard]] std::optional<ShownShape> steppedBack() const override { return std::nullopt; }

    void keyboardHeightDidChange() override { keyboardHeights.push_back(Screen::current().keyboardHeight()); }

    [[nodiscard]] UIView& shownView() const override { return *self_; }

    void dismissPresented() override { ++dismissals; }

    std::vector<Action> shownActions;
    bool transient = false;
    std::vector<double> keyboardHeights; ///< as they were when it was told of a change
    int dismissals = 0;

private:
    UIView* const self_ = this;
};
