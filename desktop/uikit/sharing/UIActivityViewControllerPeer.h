#pragma once

#include "UIKit/UIActivityViewController.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/DesktopPopoverPresentationController.h"
#include "presentation/SheetContent.h"

#include <string>
#include <vector>

/// The desktop's half of a share sheet: what is shared. Made with the controller.
// NOLINTNEXTLINE(misc-multiple-inheritance): an interface whose answers may be left out
class UIActivityViewControllerPeer final : public UIViewControllerPeer, public SheetContent {
public:
    using Object = UIActivityViewController;

    explicit UIActivityViewControllerPeer(std::vector<Ref<NSURL>> items) : items_(std::move(items)) {}

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    [[nodiscard]] std::string obstacle() const override;

    [[nodiscard]] Ref<UIPopoverPresentationController> popover() const override { return popover_; }

    // SheetContent:
    [[nodiscard]] std::string sheetTitle() const override;

    [[nodiscard]] std::string sheetDetail() const override { return {}; }

    [[nodiscard]] std::string sheetSymbol() const override { return {}; }

    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override { return {}; }

    [[nodiscard]] std::string_view sheetKind() const override { return "share"; }

    [[nodiscard]] std::vector<std::string> sheetUrls() const override;

private:
    const std::vector<Ref<NSURL>> items_;
    const Ref<DesktopPopoverPresentationController> popover_ = make<DesktopPopoverPresentationController>();
};
