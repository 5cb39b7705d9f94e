#pragma once

#include "Phone.h"
#include "UIKit/UINavigationController.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "cxRootListController.h"
#include "menus/DesktopMenu.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The root page on a phone's screen, in a navigation controller.
class RootPageFixture : public Phone {
protected:
    using Log = std::vector<std::string>;
    using Sounds = std::vector<std::uint32_t>;

    static constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";

    /// \param knowsWhatIsNew whether what is new has been shown before
    explicit RootPageFixture(bool knowsWhatIsNew);
    ~RootPageFixture() override;

    void show();

    [[nodiscard]] DesktopNavigationItem& item() const;
    [[nodiscard]] Ref<GlintImageSwitch> masterSwitch() const;
    [[nodiscard]] const DesktopBarButtonItem& gear() const;
    [[nodiscard]] const DesktopMenu& menu() const;

    static void store(const PropertyList& value, std::string_view key = "kEnabled");
    /// What is on disk.
    [[nodiscard]] static std::optional<PropertyList> stored(std::string_view key);

    void tapMasterSwitch();

    Ref<UINavigationController> navigation = make<UINavigationController>();
    Ref<cxRootListController> page;
};
