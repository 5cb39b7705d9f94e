#include "alerts/AlertTextView.h"

#include "ObjectiveC/Class.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/WrappedLabel.h"

namespace {

const Class classObject = Class::define<AlertTextView, UIScrollView>("AlertTextView");

constexpr double sideMargin = 16;
constexpr double edgeMargin = 20; ///< above and below
constexpr double gap = 3;
constexpr FontStyle titleStyle{.size = 17, .weight = FontWeight::Semibold};
constexpr FontStyle messageStyle{.size = 13};

Ref<UILabel> centredLabel(const std::string& text, const FontStyle& style) {
    return wrappedLabel(text, style, SystemColor::Label, NSTextAlignment::Center);
}

/// In an alert as wide as that; 0 without a label.
double heightIn(double width, const Ref<UILabel>& label) {
    return label ? heightOf(*label, width - 2 * sideMargin) : 0;
}

} // namespace

AlertTextView::AlertTextView(const std::string& title, const std::optional<std::string>& message) {
    if (!title.empty()) {
        title_ = centredLabel(title, titleStyle);
        addSubview(title_);
    }
    if (message && !message->empty()) {
        message_ = centredLabel(*message, messageStyle);
        addSubview(message_);
    }
}

double AlertTextView::fullHeight(double width) const {
    if (!title_ && !message_)
        return 0;
    const auto between = title_ && message_ ? gap : 0;
    return 2 * edgeMargin + heightIn(width, title_) + between + heightIn(width, message_);
}

void AlertTextView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    const auto width = bounds().size.width;
    auto top = edgeMargin;
    for (const auto& label : {title_, message_}) {
        if (!label)
            continue;
        const auto height = heightIn(width, label);
        label->setFrame(CGRectMake(sideMargin, top, width - 2 * sideMargin, height));
        top += height + gap;
    }
    peerOf<UIScrollViewPeer>(*this).setContentSize({width, fullHeight(width)});
}
