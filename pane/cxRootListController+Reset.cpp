#include "AudioToolbox/AudioServices.h"
#include "CoreFoundation/CFString.h"
#include "Dispatch/MainQueue.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "PreferenceKeys.h"
#include "PreferenceStore.h"
#include "RootPrefixResolver.h"
#include "System/DynamicLibrary.h"
#include "UIKit/UIApplication.h"
#include "cxRootListController.h"

#include <chrono>

/// Ends an application: its identifier, a reason code, whether to write a crash report, and a description or
/// null.
using TerminateApplication = void(CFStringRef identifier, int reason, bool report, CFStringRef description);

/// Where the system's function was found last; null before that.
extern "C" [[gnu::visibility(
    "default")]] TerminateApplication* BKSTerminateApplicationForReasonAndReportWithDescription;
TerminateApplication* BKSTerminateApplicationForReasonAndReportWithDescription = nullptr;

namespace {

constexpr auto warningSound = 1519U;
constexpr auto terminationDelay = 0.5; ///< seconds, in which Settings goes to the background
constexpr auto settingsIdentifier = "com.apple.Preferences";
constexpr auto terminationReason = 1;
constexpr auto servicesPath =
    "/System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices";
constexpr auto servicesFunction = "BKSTerminateApplicationForReasonAndReportWithDescription";

void removeFile(const std::string& path) {
    const auto converted = RootPrefixResolver::jailbreakRootPath(path);
    if (!converted)
        return;
    if (const auto removed = NSFileManager::defaultManager().removeItemAtPath(*converted); !removed)
        NSLog("Error removing file at path %@: %@", *converted, removed.error());
}

} // namespace

void cxRootListController::resetSettings() {
    AudioServicesPlaySystemSound(warningSound);
    presentViewController(createResetAlert(), true, {});
}

Ref<UIAlertController> cxRootListController::createResetAlert() {
    auto alert = UIAlertController::alertControllerWithTitle(
        "Reset CX Settings", "Do you want to reset settings?", UIAlertControllerStyle::Alert);
    alert->addAction(createCancelAction());
    alert->addAction(createConfirmAction());
    return alert;
}

Ref<UIAlertAction> cxRootListController::createCancelAction() {
    return UIAlertAction::actionWithTitle("Cancel", UIAlertActionStyle::Cancel, {});
}

Ref<UIAlertAction> cxRootListController::createConfirmAction() {
    return UIAlertAction::actionWithTitle(
        "Confirm", UIAlertActionStyle::Destructive,
        [page = retain(this)](UIAlertAction& /*action*/) { page->performReset(); });
}

void cxRootListController::performReset() {
    clearUserDefaults();
    removePreferenceFiles();
    finalizeReset();
}

void cxRootListController::clearUserDefaults() {
    PreferenceStore::removeAll(preferences());
}

// The folder of the images stays.
void cxRootListController::removePreferenceFiles() {
    removeFile(std::string(preferenceFilePath));
    for (const auto name : ImageFileSet)
        removeFile(std::string(imageFolderPath).append("/").append(name));
}

void cxRootListController::finalizeReset() {
    reloadSpecifiers();
    closeSettings();
}

void cxRootListController::closeSettings() {
    minimizeSettings();
    terminateSettingsAfterDelay(terminationDelay);
}

void cxRootListController::minimizeSettings() {
    UIApplication::sharedApplication()->performSelector("suspend");
}

void cxRootListController::terminateSettingsAfterDelay(double delay) {
    const auto wait =
        std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::duration<double>(delay));
    MainQueue::after(wait, [page = retain(this)] { page->terminateSettingsUsingBKS(); });
}

void cxRootListController::terminateSettingsUsingBKS() {
    auto services = DynamicLibrary::open(servicesPath, DynamicLibrary::Binding::Lazy);
    if (!services)
        return;
    BKSTerminateApplicationForReasonAndReportWithDescription =
        services->function<TerminateApplication>(servicesFunction);
    if (BKSTerminateApplicationForReasonAndReportWithDescription != nullptr) {
        const CFString identifier(settingsIdentifier);
        BKSTerminateApplicationForReasonAndReportWithDescription(identifier.ref(), terminationReason, false,
                                                                 nullptr);
    }
    services->close();
}
