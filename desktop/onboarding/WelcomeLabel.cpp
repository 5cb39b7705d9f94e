#include "WelcomeLabel.h"

#include "DesktopColor.h"
#include "UILabelPeer.h"

#include <string>

Ref<UILabel> welcomeLabel(std::string_view text, const FontStyle& style, SystemColor color) {
    auto label = make<UILabel>();
    auto& peer = UILabelPeer::of(*label);
    peer.setText(std::string(text));
    peer.setFontStyle(style);
    peer.setTextColor(DesktopColor::system(color));
    peer.setNumberOfLines(0);
    return label;
}

double heightOf(const UILabel& label, double width) {
    return label.peer().sizeThatFits({width, 0}).height;
}
