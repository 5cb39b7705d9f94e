#pragma once

#include "UIKit/UIViewController.h"
#include "navigation/NavigationBarContentView.h"
#include "navigation/NavigationPageView.h"
#include "navigation/UINavigationBarPeer.h"

/// One page of a navigation controller giving way to another: where both are, and what the bar shows, at each
/// part of the way. Made and owned by the navigation controller.
class NavigationTransition {
public:
    /// A page as the navigation controller shows it.
    struct Page {
        Ref<UIViewController> controller;
        Ref<NavigationPageView> view;
        Ref<NavigationBarContentView> content;
    };

    enum class Direction { Push, Pop };

    NavigationTransition(Page from, Page to, Direction direction, const Ref<UINavigationBar>& bar);

    [[nodiscard]] const Page& from() const { return from_; }

    [[nodiscard]] const Page& to() const { return to_; }

    [[nodiscard]] double progress() const { return progress_; }

    /// \param progress 0 shows the old page, 1 the new one
    void setProgress(double progress);

private:
    Page from_;
    Page to_;
    Direction direction_;
    Ref<UINavigationBar> bar_;
    double progress_ = 0;
};
