#include "presentation/SheetGeometry.h"

#include <algorithm>

namespace {

constexpr double topGap = 10; ///< between the safe area and a card, and beside what has stepped back
constexpr CGSize pageSize{712, 950};
constexpr CGSize formSize{540, 620};
constexpr double padGap = 20; ///< the least between the safe area and a card
constexpr double enoughPart = 0.5;
constexpr double flickSpeed = 1;

CGRect centred(CGSize size, double width, double top, double height) {
    const auto room = std::max(0.0, height - top);
    return CGRectMake((width - size.width) / 2, top + std::max(0.0, (room - size.height) / 2), size.width,
                      size.height);
}

CGSize smaller(CGSize left, CGSize right) {
    return {std::min(left.width, right.width), std::min(left.height, right.height)};
}

} // namespace

CGRect SheetGeometry::cardFrame(UIModalPresentationStyle style) const {
    if (idiom == Idiom::Phone) {
        const auto highest = safeArea.top + topGap;
        const auto top =
            std::max(highest, size.height - safeArea.bottom - contentHeight.value_or(size.height));
        return CGRectMake(0, top, size.width, size.height - top);
    }
    const auto edge = std::max(safeArea.top, safeArea.bottom) + padGap;
    const CGSize greatest{size.width - 2 * padGap, size.height - 2 * edge};
    if (style != UIModalPresentationStyle::FormSheet)
        return centred(smaller(pageSize, greatest), size.width, 0, size.height);
    const auto form = smaller(formSize, greatest);
    const auto middle = centred(form, size.width, 0, size.height);
    const auto raised = centred(form, size.width, safeArea.top, size.height - keyboardHeight);
    return keyboardHeight > 0 && raised.origin.y < middle.origin.y ? raised : middle;
}

AffineTransform SheetGeometry::steppedBack(const CGRect& frame, double amount) const {
    const auto scale = 1 - amount * 2 * topGap / std::max(frame.size.width, 2 * topGap);
    const auto rise = amount * (safeArea.top - frame.origin.y);
    const auto top = -frame.size.height / 2 * (1 - scale); // where the upper edge would come to
    return AffineTransform::translation(0, rise + top).after(AffineTransform::scale(scale));
}

bool SheetGeometry::letGoDismisses(double part, double speed) {
    if (part <= 0 || speed < -flickSpeed)
        return false;
    return speed > flickSpeed || part > enoughPart;
}
