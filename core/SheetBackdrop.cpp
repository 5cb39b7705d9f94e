#include "SheetBackdrop.h"

#include "UIKit/_UIBackdropView.h"
#include "UIKit/_UIBackdropViewSettings.h"

void addBackdrop(UIView& sheet, int style) {
    const auto backdrop =
        _UIBackdropView::initWithFrame({}, true, _UIBackdropViewSettings::settingsForStyle(style));
    if (!backdrop)
        return;
    backdrop->setClipsToBounds(true);
    sheet.insertSubview(backdrop, 0);
}
