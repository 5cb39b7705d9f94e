#pragma once

#include "UIKit/UIActivityViewController.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/DesktopPopoverPresentationController.h"
#include "presentation/SheetContent.h"
#include "screen/FilePicker.h"
#include "sharing/ShareView.h"
#include "sharing/SharedFile.h"

#include <expected>
#include <string>
#include <vector>

/// The desktop's half of a share sheet: gives files of the device to the host. It leaves once that went well.
/// As something that waits for files it takes the folder that copies are saved to. Made with the controller.
// NOLINTNEXTLINE(misc-multiple-inheritance): interfaces whose answers may be left out
class UIActivityViewControllerPeer final : public UIViewControllerPeer,
                                           public FilePicker,
                                           public SheetContent {
public:
    using Object = UIActivityViewController;

    explicit UIActivityViewControllerPeer(const std::vector<Ref<NSURL>>& items);

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    [[nodiscard]] Ref<PresentationView> makePresentationView() override;
    [[nodiscard]] std::string obstacle() const override;

    [[nodiscard]] Ref<UIPopoverPresentationController> popover() const override { return popover_; }

    // FilePicker:
    std::expected<void, std::string> pickFiles(const std::vector<std::string>& hostPaths) override;
    void cancelPicking() override;

    // SheetContent:
    [[nodiscard]] std::string sheetTitle() const override;
    [[nodiscard]] std::string sheetDetail() const override;

    [[nodiscard]] std::string sheetSymbol() const override { return {}; }

    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override;

    [[nodiscard]] std::string_view sheetKind() const override { return "share"; }

    [[nodiscard]] std::optional<double> sheetHeight() const override;
    [[nodiscard]] std::vector<std::string> sheetUrls() const override;

private:
    using Outcome = std::expected<void, std::string>;

    [[nodiscard]] std::vector<ShareView::Activity> activities();
    [[nodiscard]] std::expected<std::vector<std::string>, std::string> hostUrls() const;
    Outcome copy();
    void chooseFolder();
    Outcome save(const std::vector<std::string>& hostFolders);
    Outcome openWithHost();
    /// Leaves, or says why it stays.
    Outcome finish(const Outcome& outcome);

    std::vector<std::string> urls_;
    std::vector<SharedFile> files_;
    const Ref<DesktopPopoverPresentationController> popover_ = make<DesktopPopoverPresentationController>();
};
