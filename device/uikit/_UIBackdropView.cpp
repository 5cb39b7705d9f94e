#include "UIKit/_UIBackdropView.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<_UIBackdropViewSettings> settingsClass("_UIBackdropViewSettings");
const FrameworkClassOf<_UIBackdropView, UIView> frameworkClass("_UIBackdropView");

} // namespace

_UIBackdropView::_UIBackdropView() = default;

Ref<_UIBackdropView> _UIBackdropView::initWithFrame(const CGRect& frame, bool autosizesToFitSuperview,
                                                    const Ref<_UIBackdropViewSettings>& settings) {
    return makeObject<"-[_UIBackdropView initWithFrame:autosizesToFitSuperview:settings:]", _UIBackdropView>(
        frame, autosizesToFitSuperview, settings);
}

Ref<_UIBackdropViewSettings> _UIBackdropViewSettings::settingsForStyle(int style) {
    return sendToClass<"+[_UIBackdropViewSettings settingsForStyle:]", Ref<_UIBackdropViewSettings>>(
        std::int64_t{style});
}
