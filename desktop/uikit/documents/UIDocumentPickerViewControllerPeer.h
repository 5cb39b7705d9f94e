#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIDocumentPickerViewController.h"
#include "UIKit/UINavigationController.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/SheetContent.h"
#include "screen/FilePicker.h"

#include <expected>
#include <string>
#include <vector>

class DocumentFolderPage;

/// The desktop's half of a document picker: the folders of the device, what may be chosen there, and who is
/// told. Whatever is chosen, the delegate gets a copy. Made with the controller.
// NOLINTNEXTLINE(misc-multiple-inheritance): interfaces whose answers may be left out
class UIDocumentPickerViewControllerPeer final : public UIViewControllerPeer,
                                                 public FilePicker,
                                                 public SheetContent {
public:
    using Object = UIDocumentPickerViewController;

    explicit UIDocumentPickerViewControllerPeer(std::vector<std::string> types);

    void setDelegate(NSObject& delegate) { delegate_ = Weak<NSObject>(&delegate); }

    void setAllowsMultipleSelection(bool allows) { allowsMultipleSelection_ = allows; }

    /// On the device. Set before the view is loaded.
    void setDirectory(std::string path) { directory_ = std::move(path); }

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;

    // FilePicker:
    std::expected<void, std::string> pickFiles(const std::vector<std::string>& hostPaths) override;
    void cancelPicking() override;

    // SheetContent:
    [[nodiscard]] std::string sheetTitle() const override;

    [[nodiscard]] std::string sheetDetail() const override { return {}; }

    [[nodiscard]] std::string sheetSymbol() const override { return {}; }

    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override;

    [[nodiscard]] std::string_view sheetKind() const override { return "documentPicker"; }

    [[nodiscard]] Ref<UINavigationItem> sheetBarItem() const override;

private:
    /// The paths of copies on the device, or why there are none.
    using Copies = std::expected<std::vector<std::string>, std::string>;

    [[nodiscard]] Ref<DocumentFolderPage> page() const;
    void browseHost();
    void pickFromDevice(const std::string& path);
    [[nodiscard]] Copies copiesOf(const std::vector<std::string>& hostPaths) const;
    std::expected<void, std::string> handOver(const Copies& copies);

    std::vector<std::string> types_;
    std::string directory_;
    Weak<NSObject> delegate_;
    Ref<UINavigationController> navigation_;
    bool allowsMultipleSelection_ = false;
};
