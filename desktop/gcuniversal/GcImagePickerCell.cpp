#include "GcImagePickerCell.h"

#include "DesktopColor.h"
#include "GcImagePickerController.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "RowImage.h"
#include "SystemTexts.h"
#include "UIKit/UINavigationController.h"
#include "cells/PSTableCellPeer.h"

#include <memory>

namespace {

const Class cellClass = Class::define<GcImagePickerCell, PSTableCell>("GcImagePickerCell");

constexpr double previewSize = 29;
constexpr double previewCorner = 6.5;

class GcImagePickerCellPeer final : public PSTableCellPeer {
public:
    // PSTableCellPeer:
    void refresh() override;
    bool tapped(PSListController& page) override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    Ref<UIImageView> preview_;
};

void GcImagePickerCellPeer::viewMade() {
    PSTableCellPeer::viewMade();
    preview_ = make<UIImageView>();
    preview_->setFrame(CGRectMake(0, 0, previewSize, previewSize));
    preview_->setContentMode(UIViewContentMode::ScaleAspectFill);
    preview_->setClipsToBounds(true);
    preview_->layer().setCornerRadius(previewCorner);
    preview_->setBackgroundColor(DesktopColor::system(SystemColor::TertiaryFill));
    setAccessoryView(preview_);
}

void GcImagePickerCellPeer::refresh() {
    PSTableCellPeer::refresh();
    if (!specifier())
        return;
    const RowImage kept(*specifier());
    preview_->setImage(kept.image());
    detailTextLabel().setText({});
    setAccessibility({.label = {},
                      .value = systemText(kept.exists() ? "image" : "no image"),
                      .role = AccessibilityRole::None,
                      .isElement = false});
}

bool GcImagePickerCellPeer::tapped(PSListController& page) {
    const auto changed = [weak = Weak<PSListController>(&page), row = specifier()] {
        if (const auto kept = weak.strong())
            peerOf<PSListControllerPeer>(*kept).reloadSpecifier(*row);
    };
    const auto sheet = make<UINavigationController>();
    sheet->pushViewController(make<GcImagePickerController>(specifier(), changed), false);
    page.presentViewController(sheet, true, {});
    return true;
}

} // namespace

GcImagePickerCell::GcImagePickerCell() : PSTableCell(std::make_unique<GcImagePickerCellPeer>()) {}
