#pragma once

#include "UIKit/UINavigationItem.h"
#include "UIKit/UIPopoverPresentationController.h"
#include "UIKit/UIResponder.h"
#include "UIKit/UIView.h"

#include <functional>
#include <memory>

class UINavigationController;

/// The platform's half of a view controller; each platform defines it.
class UIViewControllerPeer;

/// How a controller is shown above others. The numbers are the platform's.
enum class UIModalPresentationStyle : int {
    Automatic = -2, ///< as a page sheet
    PageSheet = 1,  ///< a card that leaves a strip of what is beneath; on a tablet as wide as a page of text
    FormSheet = 2,  ///< on a tablet a smaller card in the middle, on a phone a page sheet
};

/// Manages one page: its view, made when it is first asked for, and what the bars around it show.
class UIViewController : public UIResponder {
public:
    UIViewController();

    [[nodiscard]] UIView& view();

    /// The view has been made. Called once. An override calls its base first.
    virtual void viewDidLoad();

    [[nodiscard]] UINavigationItem& navigationItem() const;

    /// The navigation controller that the controller is in; empty when it is in none.
    [[nodiscard]] Ref<UINavigationController> navigationController() const;

    /// Shows `controller` above this controller; it is kept alive until it is dismissed. The outermost
    /// controller around this one presents: the window's, or the presented one that this one is in. The order
    /// is `viewWillAppear` of the new one, the animation, `viewDidAppear`, `completion`. Without an animation
    /// all of that is done before this returns.
    ///
    /// Nothing happens but a line in the log, and `completion` is never called, when the outermost controller
    /// presents one already, is itself still on its way, or is not in a window, and when `controller` is
    /// presented or shown elsewhere.
    /// \param completion may be empty
    void presentViewController(const Ref<UIViewController>& controller, bool animated,
                               std::function<void()> completion);

    /// Takes away what the outermost controller around this one has presented, with all above that; only the
    /// topmost is animated. When it has presented nothing, it is itself taken away by who has presented it.
    /// The order is `viewWillDisappear`, the animation, `viewDidDisappear`, `presentedViewController` becomes
    /// empty, `completion`. Without an animation all of that is done before this returns. What is on its way
    /// turns round where it is, and who awaited its coming is told just before `completion`; of what is on
    /// its way out already, `completion` awaits the end.
    ///
    /// When nothing is presented nothing happens, and `completion` is never called.
    /// \param completion may be empty
    void dismissViewControllerAnimated(bool animated, std::function<void()> completion);

    /// What the outermost controller around this one has presented, until it is gone; empty for nothing.
    [[nodiscard]] Ref<UIViewController> presentedViewController() const;

    /// How this controller is shown when it is presented. Set before that.
    void setModalPresentationStyle(UIModalPresentationStyle style);

    /// Whether, presented, the user cannot swipe or tap it away. Not so until it is set.
    void setModalInPresentation(bool modal);

    /// The popover that the controller is shown in when it is presented on a tablet; empty for a controller
    /// that is presented in no popover.
    [[nodiscard]] Ref<UIPopoverPresentationController> popoverPresentationController() const;

    /// For the platform's own code.
    [[nodiscard]] UIViewControllerPeer& peer() const { return *peer_; }

protected:
    explicit UIViewController(std::unique_ptr<UIViewControllerPeer> peer);
    ~UIViewController() override;

private:
    const std::unique_ptr<UIViewControllerPeer> peer_;
};
