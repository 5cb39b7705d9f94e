#include "presentation/DesktopPopoverPresentationController.h"

#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject =
    Class::define<DesktopPopoverPresentationController>("UIPopoverPresentationController");

} // namespace

CGRect DesktopPopoverPresentationController::sourceOnScreen() const {
    return sourceView()->peer().convertToScreen(sourceRect_);
}
