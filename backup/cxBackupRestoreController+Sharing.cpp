#include "Foundation/Format.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "Foundation/NSURL.h"
#include "UIKit/UIActivityViewController.h"
#include "UIKit/UIApplication.h"
#include "UIKit/UIDevice.h"
#include "UIKit/UIPopoverPresentationController.h"
#include "cxBackupRestoreController.h"

namespace {

constexpr auto idiomSelector = "userInterfaceIdiom";

Ref<NSURL> filzaUrl(const std::string& path) {
    return NSURL::URLWithString(
        stringWithFormat("filza://view%@", stringByAddingPercentEncodingWithURLPathAllowedCharacters(path)));
}

bool isTablet() {
    const auto device = UIDevice::currentDevice();
    return device && device->respondsToSelector(idiomSelector) &&
           device->userInterfaceIdiom() == UIUserInterfaceIdiom::Pad;
}

void anchorToMiddle(const UIViewController& shared, UIView& view) {
    const auto popover = shared.popoverPresentationController();
    if (!popover)
        return;
    const auto size = view.bounds().size;
    popover->setSourceView(view);
    popover->setSourceRect(CGRectMake(size.width / 2, size.height / 2, 0, 0));
}

} // namespace

void cxBackupRestoreController::openInFilza(const std::optional<std::string>& fileName) {
    const auto application = UIApplication::sharedApplication();
    const auto url = filzaUrl(pathOfBackup(fileName.value_or("")));
    if (!url || !application->canOpenURL(url)) {
        showMessage("Filza is not installed", "Error");
        return;
    }
    application->openURL(url, [page = retain(this)](bool opened) {
        if (!opened)
            page->showMessage("Could not open Filza", "Error");
    });
}

void cxBackupRestoreController::shareBackup(const std::optional<std::string>& fileName) {
    NSLog("Sharing backup: %@", fileName);
    const auto path = pathOfBackup(fileName.value_or(""));
    if (!NSFileManager::defaultManager().fileExistsAtPath(path)) {
        showMessage("Backup file not found", "Error");
        return;
    }
    const auto shared = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(path)});
    if (!shared)
        return;
    if (isTablet())
        anchorToMiddle(*shared, view());
    presentViewController(shared, true, {});
}
