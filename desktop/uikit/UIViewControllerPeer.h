#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIViewController.h"

#include <string>
#include <vector>

class DesktopNavigationItem;

/// The desktop's half of a view controller: its view, its place among the controllers, and what it is told
/// when its view comes and goes. The engine's own controllers derive theirs from it.
class UIViewControllerPeer {
public:
    UIViewControllerPeer();
    virtual ~UIViewControllerPeer();
    UIViewControllerPeer(const UIViewControllerPeer&) = delete;
    UIViewControllerPeer& operator=(const UIViewControllerPeer&) = delete;

    /// The controller that the peer belongs to; set by the controller's constructor.
    [[nodiscard]] UIViewController& controller() const { return *controller_; }

    /// The view, made and announced by `viewDidLoad` when it is first asked for.
    [[nodiscard]] UIView& view();

    [[nodiscard]] bool isViewLoaded() const { return static_cast<bool>(view_); }

    [[nodiscard]] const std::string& title() const { return title_; }

    void setTitle(std::string title);

    [[nodiscard]] DesktopNavigationItem& navigationItem() const { return *navigationItem_; }

    // Controllers within controllers.
    [[nodiscard]] UIViewController* parent() const { return parent_; }

    [[nodiscard]] const std::vector<Ref<UIViewController>>& children() const { return children_; }

    void addChild(const Ref<UIViewController>& child);
    void removeFromParent();

    /// Where the view is on its way to being seen or unseen.
    enum class Appearance { Disappeared, Appearing, Appeared, Disappearing };

    [[nodiscard]] Appearance appearance() const { return appearance_; }

    /// Tells this controller that its view is about to come or go, then that it has; `viewWillAppear` and its
    /// kin below, each only when that is news.
    void beginAppearance(bool appearing, bool animated);
    void endAppearance(bool animated);

    virtual void viewWillAppear(bool /*animated*/) {}

    virtual void viewDidAppear(bool /*animated*/) {}

    virtual void viewWillDisappear(bool /*animated*/) {}

    virtual void viewDidDisappear(bool /*animated*/) {}

    /// How far the page has come back from beneath another one: from 0 to 1, and down to 0 again when the
    /// way back is given up. What it changes moves with the pages.
    virtual void pageReturns(double /*progress*/) {}

    /// The view has been made; called before the controller is told.
    virtual void viewDidLoad() {}

    /// The view has placed its subviews.
    virtual void viewDidLayoutSubviews() {}

    /// The view, not yet loaded before.
    [[nodiscard]] virtual Ref<UIView> makeView();

    /// The children that come and go together with this controller: those whose views are within its view.
    [[nodiscard]] virtual std::vector<Ref<UIViewController>> appearingChildren() const;

private:
    friend class UIViewController;

    UIViewController* controller_ = nullptr;
    Ref<UIView> view_;
    Ref<DesktopNavigationItem> navigationItem_;
    UIViewController* parent_ = nullptr;
    std::vector<Ref<UIViewController>> children_;
    std::string title_;
    Appearance appearance_ = Appearance::Disappeared;
};
