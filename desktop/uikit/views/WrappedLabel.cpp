#include "views/WrappedLabel.h"

#include "DesktopColor.h"
#include "views/UILabelPeer.h"

Ref<UILabel> wrappedLabel(const std::string& text, const FontStyle& style, SystemColor color,
                          NSTextAlignment alignment) {
    auto label = make<UILabel>();
    auto& peer = peerOf<UILabelPeer>(*label);
    peer.setText(text);
    peer.setFontStyle(style);
    peer.setTextColor(DesktopColor::system(color));
    peer.setNumberOfLines(0);
    label->setTextAlignment(alignment);
    return label;
}

double heightOf(const UILabel& label, double width) {
    return label.peer().sizeThatFits({width, 0}).height;
}
