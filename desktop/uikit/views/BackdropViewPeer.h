#pragma once

#include "UIKit/_UIBackdropView.h"
#include "views/DesktopBackdropSettings.h"
#include "views/UIViewPeer.h"

/// The desktop's half of a backdrop: its material, and whether it fills its superview. Made with the view.
class BackdropViewPeer : public UIViewPeer {
public:
    using Object = _UIBackdropView;

    /// Once, when the view is readied. \param settings empty for none
    void setSettings(const Ref<DesktopBackdropSettings>& settings);

    void setAutosizesToFitSuperview(bool autosizes) { autosizesToFitSuperview_ = autosizes; }

    // UIViewPeer:
    void didMoveToSuperview() override;

private:
    bool autosizesToFitSuperview_ = false;
};
