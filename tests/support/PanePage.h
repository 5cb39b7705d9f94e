#pragma once

#include "Foundation/PropertyList.h"
#include "Phone.h"
#include "UIKit/UINavigationController.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A device on whose screen a page of the pane is shown, in a navigation controller. Of the pane's bundle
/// there is that page's list alone.
class PanePage : public Phone {
protected:
    using Log = std::vector<std::string>;

    static constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";
    static constexpr auto preferencesFile = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";

    /// \param className of the page, which is the bundle's
    /// \param listName of the list, which is written as `list` says, an XML property list
    PanePage(std::string_view className, const std::string& listName, std::string_view list,
             const Screen::Options& options = {});
    ~PanePage() override;

    /// Pushes a page; all is at rest afterwards.
    void showPage(const Ref<UIViewController>& page);

    /// Keeps one of the pane's settings, on disk.
    static void store(const PropertyList& value, std::string_view key = "kEnabled");
    /// What is on disk.
    [[nodiscard]] static std::optional<PropertyList> stored(std::string_view key);

    Ref<UINavigationController> navigation = make<UINavigationController>();
};
