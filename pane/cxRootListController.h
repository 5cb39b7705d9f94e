#pragma once

#include "Foundation/NSUserDefaults.h"
#include "GlintImageSwitch.h"
#include "OnBoardingKit/OBWelcomeController.h"
#include "Preferences/PSListController.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UISwitch.h"

#include <string>

/// The pane's first page: the "Root" list, with the extension's master switch in the navigation bar and a
/// menu of what concerns all settings: applying them and resetting them, both of which end the Settings
/// application. Tells once what is new in a version. The principal class of the bundle, made by the
/// Preferences framework.
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
    /// Stores the master switch's value; none counts as off.
    void switchChanged(const Ref<GlintImageSwitch>& sender);

    /// Makes the menu and puts it into the navigation bar.
    void setupButtonMenu();

    /// Opens the page whose class name the sender's `identifier` is. A name that no page class has is logged,
    /// as is the lack of one or of a sender, and nothing opens.
    void openController(const Ref<UIControl>& sender);

    /// Shows what is new unless that was done for this version.
    void checkAndShowChangelogIfNeeded();
    /// Notes that what is new in this version has been shown.
    void saveCurrentVersion();
    /// Presents a sheet with what is new, in place of an earlier one.
    void showWtfChangedInThisVersion();
    void addChangelogItemsToController(const Ref<OBWelcomeController>& controller, const Ref<UIImage>& image);

    /// Asks whether to reset the settings.
    void resetSettings();
    [[nodiscard]] Ref<UIAlertController> createResetAlert();
    [[nodiscard]] Ref<UIAlertAction> createCancelAction();
    /// The action that resets.
    [[nodiscard]] Ref<UIAlertAction> createConfirmAction();
    /// Removes all settings and images, and ends Settings. There is no way back.
    void performReset();
    /// Every key of the suite, whether or not the pane knows it.
    void clearUserDefaults();
    /// The settings' file and the images. What cannot be removed is logged and left.
    void removePreferenceFiles();
    void finalizeReset();

    /// Ends Settings, so that it starts afresh with the settings as they are: to the background at once, and
    /// half a second later out.
    void closeSettings();
    void minimizeSettings();
    /// \param delay seconds
    void terminateSettingsAfterDelay(double delay);
    /// Has the system end Settings; nothing happens where its service is missing.
    void terminateSettingsUsingBKS();

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
    /// Opened when they are first needed, should nobody have set them up.
    [[nodiscard]] NSUserDefaults& preferences();

    Ref<OBWelcomeController> changelogController_;
    Ref<NSUserDefaults> preferences_;
    Ref<UIBarButtonItem> respringButton_;
    Ref<UISwitch> toggleSwitch_;
    Ref<UIViewController> popupViewController_;
};
