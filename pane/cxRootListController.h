#pragma once

#include "Foundation/NSUserDefaults.h"
#include "GlintImageSwitch.h"
#include "Preferences/PSListController.h"
#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UISwitch.h"

#include <string>

/// The pane's first page: the "Root" list, with the extension's master switch in the navigation bar and a
/// menu of what concerns all settings. The principal class of the bundle, made by the Preferences framework.
class cxRootListController final : public PSListController {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;

    // UIViewController:
    void viewDidLoad() override;

    /// Opens the preferences anew.
    void setupPreferences();

    /// Makes the master switch and puts it into the navigation bar.
    void setupNavigationSwitch();
    /// The switch, in the page's view and with the page as its target.
    [[nodiscard]] Ref<GlintImageSwitch> createNavigationSwitch();
    /// Gives the switch its colours and the stored value. Colours come first: setting one may repaint.
    void configureNavigationSwitch(const Ref<GlintImageSwitch>& navigationSwitch);
    /// Stores the master switch's value.
    void switchChanged(const Ref<GlintImageSwitch>& sender);

    /// Makes the menu and puts it into the navigation bar.
    void setupButtonMenu();

    /// Opens the page whose class name the sender's `identifier` is. A name that no page class has is logged,
    /// and nothing opens.
    void openController(const Ref<UIControl>& sender);

    // Kept for whoever sets them; the page itself does not.
    [[nodiscard]] const Ref<UIBarButtonItem>& respringButton() const { return respringButton_; }

    void setRespringButton(const Ref<UIBarButtonItem>& button) { respringButton_ = button; }

    [[nodiscard]] const Ref<UISwitch>& toggleSwitch() const { return toggleSwitch_; }

    void setToggleSwitch(const Ref<UISwitch>& toggleSwitch) { toggleSwitch_ = toggleSwitch; }

    [[nodiscard]] const Ref<UIViewController>& popupViewController() const { return popupViewController_; }

    void setPopupViewController(const Ref<UIViewController>& controller) {
        popupViewController_ = controller;
    }

private:
    Ref<NSUserDefaults> preferences_;
    Ref<UIBarButtonItem> respringButton_;
    Ref<UISwitch> toggleSwitch_;
    Ref<UIViewController> popupViewController_;
};
