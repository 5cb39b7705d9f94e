#include "touches/DesktopTapGestureRecognizer.h"
#include "views/UIViewPeer.h"

void UIView::addGestureRecognizer(const Ref<UITapGestureRecognizer>& recognizer) {
    peer_->addGestureRecognizer(dynamicCast<DesktopTapGestureRecognizer>(recognizer)->recognizer());
}
