#pragma once

#include "DrivenApplication.h"
#include "Shell.h"

/// The shell as the driver asks it. Made by the program; the shell outlives it.
class DrivenShell final : public DrivenApplication {
public:
    /// The entry of this project's own pane.
    static constexpr std::string_view ownEntry = "corvexPrefs";

    explicit DrivenShell(Shell& shell) : shell_(shell) {}

    // DrivenApplication:
    [[nodiscard]] std::string name() const override { return std::string(shell_.app()); }

    [[nodiscard]] Ref<UIViewController> page() const override;
    Outcome open(const std::optional<std::string>& entry) override;
    Outcome goBack() override;
    Outcome relaunch() override;

    void refresh() override { shell_.bars().refresh(); }

private:
    Shell& shell_;
};
