#include "screen/HomeIndicatorView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<HomeIndicatorView, UIView>("HomeIndicatorView");

constexpr auto height = 5.0;
constexpr auto phoneWidth = 139.0;
constexpr auto padWidth = 315.0;
constexpr auto phoneGap = 8.0; ///< to the screen's lower edge
constexpr auto padGap = 7.0;

} // namespace

HomeIndicatorView::HomeIndicatorView() {
    setUserInteractionEnabled(false);
    setBackgroundColor(DesktopColor::system(SystemColor::Label));
    layer().setCornerRadius(height / 2);
}

CGRect HomeIndicatorView::frameIn(CGSize screen, bool isPhone) {
    const auto width = isPhone ? phoneWidth : padWidth;
    return CGRectMake((screen.width - width) / 2, screen.height - height - (isPhone ? phoneGap : padGap),
                      width, height);
}
