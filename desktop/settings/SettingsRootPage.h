#pragma once

#include "EntryList.h"
#include "Preferences/PSListController.h"
#include "UIKit/UIImage.h"

#include <functional>
#include <string_view>
#include <vector>

/// The first page of Settings: a row that leads to the page about the device, and one for each entry that is
/// installed. Made by the Settings application.
class SettingsRootPage final : public PSListController {
public:
    static constexpr auto aboutId = "about"; ///< of the row that leads to the page about the device

    /// Whom the page tells what the user wants to see.
    struct Openers {
        std::function<void()> about;
        std::function<void(const PaneEntry&)> entry;
    };

    SettingsRootPage();
    ~SettingsRootPage() override;
    SettingsRootPage(const SettingsRootPage&) = delete;
    SettingsRootPage& operator=(const SettingsRootPage&) = delete;

    /// With none set the rows do nothing.
    void setOpeners(Openers openers) { openers_ = std::move(openers); }

    /// Selects the row whose page is shown beside this one, by its identifier: an entry's is its name.
    /// Nothing happens when there is no such row.
    void showSelected(std::string_view id);

    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;

    // Actions of the rows.
    void openAbout() const;
    void openEntry(const Ref<PSSpecifier>& specifier);

private:
    /// Those of the bundles, before a bundle is opened.
    void expectPictures() const;
    [[nodiscard]] Ref<PSSpecifier> makeRow(PropertyList::Dictionary properties, const Ref<UIImage>& icon);

    Openers openers_;
    std::vector<PaneEntry> entries_;
};
