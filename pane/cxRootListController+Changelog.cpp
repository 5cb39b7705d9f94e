#include "RootPrefixResolver.h"
#include "SheetBackdrop.h"
#include "Version.h"
#include "cxRootListController.h"

#include <array>

namespace {

constexpr auto shownVersionKey = "LastVersionPopupShown"; ///< meant to be in no backup
constexpr auto sheetTitle = "Corvex";
constexpr auto iconPath = "/Library/PreferenceBundles/corvexPrefs.bundle/icon.png";
constexpr auto iconInstead = "gear";
constexpr auto itemSymbol = "checkmark.circle.fill";
constexpr auto backdropStyle = 2;

struct ChangelogItem {
    std::string_view title;
    std::string_view description;
};

constexpr std::array<ChangelogItem, 6> changelog{{
    {.title = "New Backup & Restore System",
     .description = "Added ability to create, restore, and share backups with other users. Export and import "
                    "your settings easily!"},
    {.title = "Enhanced Performance",
     .description = "Faster loading times and smoother experience throughout Settings."},
    {.title = "Better Image Handling",
     .description = "Improved custom image loading with better memory management and faster loading times."},
    {.title = "Improved Background System",
     .description = "More reliable background color changes and smoother transitions."},
    {.title = "General Improvements",
     .description = "Bug fixes, stability improvements, and overall better user experience."},
    {.title = "Roothide Support", .description = "Corvex now supports Roothide"},
}};

Ref<UIImage> loadIcon() {
    const auto path = RootPrefixResolver::jailbreakRootPath(iconPath);
    const auto icon = path ? UIImage::imageWithContentsOfFile(*path) : nullptr;
    return icon ? icon : UIImage::systemImageNamed(iconInstead);
}

} // namespace

void cxRootListController::checkAndShowChangelogIfNeeded() {
    if (preferences().stringForKey(shownVersionKey) == corvexVersion)
        return;
    showWtfChangedInThisVersion();
    saveCurrentVersion();
}

void cxRootListController::saveCurrentVersion() {
    preferences().setObject(corvexVersion, shownVersionKey);
    preferences().synchronize();
}

void cxRootListController::showWtfChangedInThisVersion() {
    if (changelogController_) {
        changelogController_->dismissViewControllerAnimated(false, {});
        changelogController_ = nullptr;
    }
    changelogController_ = OBWelcomeController::initWithTitle(sheetTitle, corvexVersion, loadIcon());
    if (!changelogController_)
        return;
    addChangelogItemsToController(changelogController_, UIImage::systemImageNamed(itemSymbol));
    auto& view = changelogController_->view();
    addBackdrop(view, backdropStyle);
    view.setBackgroundColor(UIColor::clearColor());
    view.setTintColor(UIColor::yellowColor());
    changelogController_->setModalPresentationStyle(UIModalPresentationStyle::PageSheet);
    presentViewController(changelogController_, true, {});
}

void cxRootListController::addChangelogItemsToController(const Ref<OBWelcomeController>& controller,
                                                         const Ref<UIImage>& image) {
    if (!controller)
        return;
    for (const auto& item : changelog)
        controller->addBulletedListItemWithTitle(item.title, item.description, image);
}
