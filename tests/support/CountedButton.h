#pragma once

#include "UIKit/UIControl.h"
#include "controls/UIControlPeer.h"

#include <string>

/// A button that counts its presses, in front in a view. For the tests of programs that hold the view engine.
/// \param presses outlives the button
inline Ref<UIControl> addCountedButton(UIView& parent, const CGRect& frame, const std::string& label,
                                       int& presses) {
    auto button = make<UIControl>();
    button->setFrame(frame);
    auto& peer = peerOf<UIControlPeer>(*button);
    peer.setAccessibility(
        {.label = label, .value = {}, .role = AccessibilityRole::Button, .isElement = true});
    peer.addHandler(UIControlEvents::TouchUpInside, [&presses] { ++presses; });
    parent.addSubview(button);
    return button;
}
