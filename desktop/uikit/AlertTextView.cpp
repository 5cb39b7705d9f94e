#include "AlertTextView.h"

#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "UILabelPeer.h"
#include "UIScrollViewPeer.h"

namespace {

const Class classObject = Class::define<AlertTextView, UIScrollView>("AlertTextView");

constexpr double sideMargin = 16;
constexpr double edgeMargin = 20; ///< above and below
constexpr double gap = 3;
constexpr double titleSize = 17;
constexpr double messageSize = 13;

Ref<UILabel> makeLabel(const std::string& text, double size, FontWeight weight) {
    auto label = make<UILabel>();
    label->setText(text);
    label->setFont(DesktopFont::font(size, weight));
    label->setTextAlignment(NSTextAlignment::Center);
    UILabelPeer::of(*label).setNumberOfLines(0);
    return label;
}

double heightOf(const Ref<UILabel>& label, double width) {
    return label ? label->peer().sizeThatFits({width - 2 * sideMargin, 0}).height : 0;
}

} // namespace

AlertTextView::AlertTextView(const std::string& title, const std::optional<std::string>& message) {
    if (!title.empty()) {
        title_ = makeLabel(title, titleSize, FontWeight::Semibold);
        addSubview(title_);
    }
    if (message && !message->empty()) {
        message_ = makeLabel(*message, messageSize, FontWeight::Regular);
        addSubview(message_);
    }
}

double AlertTextView::fullHeight(double width) const {
    if (!title_ && !message_)
        return 0;
    const auto between = title_ && message_ ? gap : 0;
    return 2 * edgeMargin + heightOf(title_, width) + between + heightOf(message_, width);
}

void AlertTextView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    const auto width = bounds().size.width;
    auto top = edgeMargin;
    for (const auto& label : {title_, message_}) {
        if (!label)
            continue;
        const auto height = heightOf(label, width);
        label->setFrame(CGRectMake(sideMargin, top, width - 2 * sideMargin, height));
        top += height + gap;
    }
    peer().setContentSize({width, fullHeight(width)});
}
