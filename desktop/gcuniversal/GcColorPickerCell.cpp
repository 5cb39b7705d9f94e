#include "GcColorPickerCell.h"

#include "ColorCode.h"
#include "ColorSwatch.h"
#include "GcColorPickerController.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "UIKit/UINavigationController.h"
#include "cells/PSTableCellPeer.h"

#include <memory>

namespace {

const Class cellClass = Class::define<GcColorPickerCell, PSTableCell>("GcColorPickerCell");

constexpr double swatchSize = 29;

class GcColorPickerCellPeer final : public PSTableCellPeer {
public:
    // PSTableCellPeer:
    void refresh() override;
    bool tapped(PSListController& page) override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    Ref<ColorSwatch> swatch_;
};

void GcColorPickerCellPeer::viewMade() {
    PSTableCellPeer::viewMade();
    swatch_ = make<ColorSwatch>();
    swatch_->setFrame(CGRectMake(0, 0, swatchSize, swatchSize));
    setAccessoryView(swatch_);
}

void GcColorPickerCellPeer::refresh() {
    PSTableCellPeer::refresh();
    if (!specifier())
        return;
    const auto color = colorOfRow(*specifier());
    swatch_->setColor(color);
    detailTextLabel().setText({});
    setAccessibility(
        {.label = {}, .value = codeOfColor(color), .role = AccessibilityRole::None, .isElement = false});
}

bool GcColorPickerCellPeer::tapped(PSListController& page) {
    const auto save = [weak = Weak<PSListController>(&page), row = specifier()](const std::string& hex) {
        if (const auto kept = weak.strong())
            peerOf<PSListControllerPeer>(*kept).setValue(*row, hex);
    };
    const auto sheet = make<UINavigationController>();
    sheet->pushViewController(make<GcColorPickerController>(specifier(), save), false);
    page.presentViewController(sheet, true, {});
    return true;
}

} // namespace

GcColorPickerCell::GcColorPickerCell() : PSTableCell(std::make_unique<GcColorPickerCellPeer>()) {}
