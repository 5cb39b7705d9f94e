#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIViewController.h"
#include "objects/PeerOf.h"
#include "views/ViewOwner.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class DesktopNavigationItem;
class Presentation;
class PresentationView;

/// The desktop's half of a view controller: its view, its place among the controllers, and what it is told
/// when its view comes and goes. The engine's own controllers derive theirs from it.
class UIViewControllerPeer : public ViewOwner {
public:
    using Object = UIViewController;

    UIViewControllerPeer();
    ~UIViewControllerPeer() override;
    UIViewControllerPeer(const UIViewControllerPeer&) = delete;
    UIViewControllerPeer& operator=(const UIViewControllerPeer&) = delete;

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

    // Controllers above controllers, as the contract says it.
    void present(const Ref<UIViewController>& controller, bool animated, std::function<void()> completion);
    void dismiss(bool animated, std::function<void()> completion);
    [[nodiscard]] Ref<UIViewController> presented() const;

    [[nodiscard]] UIModalPresentationStyle modalPresentationStyle() const { return modalStyle_; }

    void setModalPresentationStyle(UIModalPresentationStyle style) { modalStyle_ = style; }

    [[nodiscard]] bool isModalInPresentation() const { return isModal_; }

    void setModalInPresentation(bool modal) { isModal_ = modal; }

    /// What the popover points to that the controller is shown in; empty when it is shown in none.
    [[nodiscard]] virtual Ref<UIPopoverPresentationController> popover() const { return nullptr; }

    /// Why the controller cannot be presented as it is; empty when it can.
    [[nodiscard]] virtual std::string obstacle() const { return {}; }

    /// What brings the view into a window when the controller is presented.
    [[nodiscard]] virtual Ref<PresentationView> makePresentationView();

    /// What this very controller is presented by; null while it is not.
    [[nodiscard]] Presentation* presentation() const { return presentation_; }

    /// What this very controller presents; empty for nothing.
    [[nodiscard]] const std::shared_ptr<Presentation>& ownPresentation() const { return ownPresentation_; }

    /// Takes away at once what this very controller presents; no completion is called any more.
    void abandonPresented();

    // For presentations.
    void setPresentation(Presentation* presentation) { presentation_ = presentation; }

    void forgetPresentation() { ownPresentation_.reset(); }

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

    /// The view, not yet loaded before.
    [[nodiscard]] virtual Ref<UIView> makeView();

    /// The children that come and go together with this controller: those whose views are within its view.
    [[nodiscard]] virtual std::vector<Ref<UIViewController>> appearingChildren() const;

    // ViewOwner:
    /// The controller that the peer belongs to; set by the controller's constructor.
    [[nodiscard]] UIViewController& controller() const override { return *controller_; }

    void viewDidLayoutSubviews() override {}

    void keyboardDidChange() override {}

private:
    friend class UIViewController;

    /// Ends what this controller presents, without the controller.
    void leavePresentation();
    /// The outermost controller around this one.
    [[nodiscard]] UIViewController& outermost() const;
    /// Why this controller cannot present that one now; empty when it can.
    [[nodiscard]] std::string presentingProblem(const Ref<UIViewController>& controller) const;

    UIViewController* controller_ = nullptr;
    Ref<UIView> view_;
    Ref<DesktopNavigationItem> navigationItem_;
    UIViewController* parent_ = nullptr;
    std::vector<Ref<UIViewController>> children_;
    std::string title_;
    std::shared_ptr<Presentation> ownPresentation_;
    Presentation* presentation_ = nullptr;
    UIModalPresentationStyle modalStyle_ = UIModalPresentationStyle::Automatic;
    Appearance appearance_ = Appearance::Disappeared;
    bool isModal_ = false;
};
