#pragma once

#include "UIKit/UIViewController.h"
#include "documents/DocumentListing.h"

#include <functional>
#include <string>
#include <vector>

/// A page of a document picker: what is in one folder of the device, as it was when the page was made. Pushes
/// a page for each folder in it that is tapped.
class DocumentFolderPage final : public UIViewController {
public:
    struct Rules {
        std::vector<std::string> types;                      ///< that a file may have to be chosen
        std::function<void(const std::string& path)> chosen; ///< a file is tapped
        std::function<void()> cancelled;                     ///< the button that takes the picker away is
    };

    /// \param path of the folder, on the device
    DocumentFolderPage(std::string path, Rules rules);

    [[nodiscard]] const std::vector<DocumentEntry>& entries() const;

    /// Whether something happens when the entry is tapped.
    [[nodiscard]] bool isSelectable(const DocumentEntry& entry) const;
};
