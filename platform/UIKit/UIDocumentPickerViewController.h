#pragma once

#include "Foundation/NSURL.h"
#include "UIKit/UIViewController.h"

#include <memory>
#include <string>
#include <vector>

/// What becomes of the files that are chosen. The number is the platform's.
enum class UIDocumentPickerMode : unsigned {
    Import = 0 ///< the application gets copies
};

/// Has the user choose files from wherever the device finds some. Made by `initWithDocumentTypes`, shown by
/// presenting it; it leaves by itself.
class UIDocumentPickerViewController : public UIViewController {
public:
    /// \param types of the files that may be chosen, such as "public.data", which every file is
    [[nodiscard]] static Ref<UIDocumentPickerViewController>
    initWithDocumentTypes(const std::vector<std::string>& types, UIDocumentPickerMode mode);

    /// Once the picker has gone, the delegate is sent `documentPicker:didPickDocumentsAtURLs:` with the
    /// picker and the files (`Ref<NSURL>`s). It is told nothing when the user chooses none. It is not kept
    /// alive, and need not respond to the message.
    void setDelegate(NSObject& delegate);

    /// One file alone until it is set.
    void setAllowsMultipleSelection(bool allows);

    /// The folder that is shown first; the device's own choice until it is set.
    void setDirectoryURL(const Ref<NSURL>& folder);

protected:
    explicit UIDocumentPickerViewController(std::unique_ptr<UIViewControllerPeer> peer);
};
