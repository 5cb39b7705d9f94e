#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIDocumentPickerViewController.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/SheetContent.h"
#include "screen/FilePicker.h"

#include <string>
#include <vector>

class UINavigationController;

/// The desktop's half of a document picker: what it may choose, and who is told. Made with the controller.
// NOLINTNEXTLINE(misc-multiple-inheritance): interfaces whose answers may be left out
class UIDocumentPickerViewControllerPeer final : public UIViewControllerPeer,
                                                 public FilePicker,
                                                 public SheetContent {
public:
    using Object = UIDocumentPickerViewController;

    explicit UIDocumentPickerViewControllerPeer(std::vector<std::string> types);

    void setDelegate(NSObject& delegate) { delegate_ = Weak<NSObject>(&delegate); }

    void setAllowsMultipleSelection(bool allows) { allowsMultipleSelection_ = allows; }

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

    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override { return {}; }

    [[nodiscard]] std::string_view sheetKind() const override { return "documentPicker"; }

private:
    void handOver(const std::vector<std::string>& paths);

    std::vector<std::string> types_;
    std::string directory_;
    Weak<NSObject> delegate_;
    bool allowsMultipleSelection_ = false;
};
