#pragma once

#include "Foundation/NSURL.h"
#include "UIKit/UIResponder.h"

#include <functional>

/// The application that the code runs in. Made by the system, one in a process.
class UIApplication : public UIResponder {
public:
    [[nodiscard]] static Ref<UIApplication> sharedApplication();

    /// Whether there is an application for the URL's scheme. \pre `url` is not empty
    [[nodiscard]] bool canOpenURL(const Ref<NSURL>& url) const;

    /// Has another application open the URL. \pre `url` is not empty
    /// \param completion called later on the main queue, with whether that went well; may be empty
    void openURL(const Ref<NSURL>& url, std::function<void(bool)> completion);
};
