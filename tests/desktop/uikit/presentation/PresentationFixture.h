#pragma once

#include "navigation/NavigationFixture.h"
#include "presentation/Presentation.h"
#include "presentation/SheetPresentationView.h"

#include <gmock/gmock.h>

/// Controllers that are presented in the window of a navigation controller, which has the page "A".
class PresentationFixture : public NavigationFixture {
protected:
    explicit PresentationFixture(const Screen::Options& options = {});

    /// Has the navigation controller present it and, once that is done, logs "presented" and its title.
    void present(const Ref<UIViewController>& controller, bool animated = false) {
        presentOn(*navigation, controller, animated);
    }

    void presentOn(UIViewController& presenter, const Ref<UIViewController>& controller,
                   bool animated = false);

    /// Has the controller dismiss and, once that is done, logs `note`.
    void dismissBy(UIViewController& controller, bool animated, const std::string& note = "dismissed");

    PageLog takeLog() { return std::exchange(log, {}); }

    /// The sheet that a controller is presented in.
    static SheetPresentationView& sheetOf(const Ref<UIViewController>& controller) {
        return dynamic_cast<SheetPresentationView&>(*controller->peer().presentation()->view());
    }

    /// What is seen of the view now, in points of the window.
    static CGRect shownFrame(const UIView& view);

    Presented* top() { return screen.presentations().top(); }
};
