#include "cells/RowControl.h"

#include "controls/UIControlPeer.h"

void adoptRow(UIControl& control, const DesktopSpecifier& row) {
    auto& peer = peerOf<UIControlPeer>(control);
    peer.setEnabled(row.isEnabled());
    peer.setAccessibility({.label = row.label().empty() ? row.identifier() : row.label(),
                           .value = {},
                           .role = AccessibilityRole::Button,
                           .isElement = true});
}
