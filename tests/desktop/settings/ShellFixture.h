#pragma once

#include "BundleFixture.h"
#include "Shell.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"

#include <optional>
#include <string>
#include <vector>

/// A phone, or another device, with its home screen and two entries: "good", whose pane is a page of a bundle
/// of the tests, and "missing", which has none.
class ShellFixture : public BundleFixture {
protected:
    using Titles = std::vector<std::string>;

    void SetUp() override;

    /// Anew, as such a device.
    void start(Idiom idiom);
    void writeEntry(const std::string& name, const std::string& bundle) const;
    void openPane(const std::string& name);

    /// The titles of the pages that panes are opened on, the first one first.
    [[nodiscard]] Titles titles() const;
    [[nodiscard]] Ref<UIViewController> topPage() const;
    /// Where Settings is on the screen.
    [[nodiscard]] CGRect frameOfSettings() const;
    /// The name of Settings on the home screen.
    [[nodiscard]] const UIView& nameOfIcon() const;

    std::optional<Screen> screen;
    std::optional<Shell> shell;
    TouchDispatcher finger;
};
