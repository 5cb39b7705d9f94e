#include "UIKit/UIPopoverPresentationController.h"

#include "FrameworkClass.h"

namespace {

class SystemPopover final : public UIPopoverPresentationController {
public:
    void setSourceView(UIView& view) override {
        send<"-[UIPopoverPresentationController setSourceView:]", void>(*this, view);
    }

    void setSourceRect(const CGRect& rect) override {
        send<"-[UIPopoverPresentationController setSourceRect:]", void>(*this, rect);
    }
};

const FrameworkClassOf<SystemPopover> frameworkClass("UIPopoverPresentationController");

} // namespace
