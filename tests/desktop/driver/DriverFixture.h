#pragma once

#include "CommandTable.h"
#include "DrivenApplication.h"
#include "Phone.h"
#include "UIKit/UIControl.h"
#include "UIKit/UILabel.h"
#include "screen/Compositor.h"

#include <QJsonArray>
#include <QJsonObject>

/// An application of one window, which notes what it is asked to do.
class NotingApplication final : public DrivenApplication {
public:
    // DrivenApplication:
    [[nodiscard]] std::string name() const override { return "home"; }

    [[nodiscard]] Ref<UIViewController> page() const override { return page_; }

    Outcome open(const std::optional<std::string>& entry) override {
        return note("open " + entry.value_or("-"));
    }

    Outcome goBack() override { return note("back"); }

    Outcome relaunch() override { return note("relaunch"); }

    void refresh() override { ++refreshes_; }

    Ref<UIViewController> page_;
    std::vector<std::string> asked_;
    std::optional<std::string> refusal_;
    int refreshes_ = 0;

private:
    Outcome note(const std::string& what) {
        asked_.push_back(what);
        return refusal_ ? Outcome(std::unexpected(*refusal_)) : Outcome();
    }
};

/// All commands on a phone with an application's window.
class DriverFixture : public Phone {
protected:
    explicit DriverFixture(const Screen::Options& options = {});

    /// What a command answers; fails the test when it cannot be done.
    [[nodiscard]] QJsonObject ask(const std::string& line) const;
    /// Why a command cannot be done; fails the test when it can.
    [[nodiscard]] std::string refusalOf(const std::string& line) const;

    /// A button in the window that counts its presses.
    [[nodiscard]] Ref<UIControl> addButton(const CGRect& frame, const std::string& label, int& presses);
    [[nodiscard]] Ref<UILabel> addLabel(const CGRect& frame, const std::string& text, UIView& parent);

    NotingApplication application_;
    Compositor compositor_{screen};
    CommandTable commands_;
};
