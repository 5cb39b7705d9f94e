#pragma once

#include "UIKit/UINavigationItem.h"
#include "UIKit/UIResponder.h"
#include "UIKit/UIView.h"

#include <memory>

class UINavigationController;

/// The platform's half of a view controller; each platform defines it.
class UIViewControllerPeer;

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

    /// For the platform's own code.
    [[nodiscard]] UIViewControllerPeer& peer() const { return *peer_; }

protected:
    explicit UIViewController(std::unique_ptr<UIViewControllerPeer> peer);
    ~UIViewController() override;

private:
    const std::unique_ptr<UIViewControllerPeer> peer_;
};
