#pragma once

#include "PaneEntry.h"
#include "PaneLoader.h"
#include "SettingsRootPage.h"
#include "UIKit/UINavigationController.h"

#include <string>

/// The Settings application while it runs: its pages, one after the other on a phone, beside its first page
/// on a tablet. Made and owned by the shell.
class SettingsApplication {
public:
    /// \param loader outlives the application
    explicit SettingsApplication(PaneLoader& loader);
    ~SettingsApplication();
    SettingsApplication(const SettingsApplication&) = delete;
    SettingsApplication& operator=(const SettingsApplication&) = delete;

    /// For the application's window.
    [[nodiscard]] const Ref<UIViewController>& rootViewController() const { return root_; }

    /// The stack that panes are opened on.
    [[nodiscard]] const Ref<UINavigationController>& pages() const { return pages_; }

    /// Opens the entry's pane in place of what is open; a pane that cannot be opened is replaced by a page
    /// that says why.
    void open(const PaneEntry& entry, bool animated);
    void openAbout(bool animated);

private:
    [[nodiscard]] Ref<UIViewController> makePage(const PaneEntry& entry);
    void show(const Ref<UIViewController>& page, bool animated);
    void makeColumns();
    /// On a tablet, marks the row whose page is shown beside it.
    void selectRow(const std::string& id);

    PaneLoader& loader_;
    Ref<SettingsRootPage> firstPage_;
    Ref<UINavigationController> pages_;
    Ref<UIViewController> root_;
};
