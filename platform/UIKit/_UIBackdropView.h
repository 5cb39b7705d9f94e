#pragma once

#include "UIKit/UIView.h"
#include "UIKit/_UIBackdropViewSettings.h"

/// Shows what lies behind it on the screen blurred and tinted. Its own subviews lie above that.
class _UIBackdropView : public UIView {
public:
    _UIBackdropView();

    using UIView::initWithFrame;

    /// \param autosizesToFitSuperview whether the view fills whichever superview it is put into, and goes on
    ///     doing so when that changes its size
    /// \param settings without any the view shows nothing
    [[nodiscard]] static Ref<_UIBackdropView> initWithFrame(const CGRect& frame, bool autosizesToFitSuperview,
                                                            const Ref<_UIBackdropViewSettings>& settings);
};
