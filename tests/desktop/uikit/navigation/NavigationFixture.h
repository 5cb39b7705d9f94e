#pragma once

#include "Phone.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "menus/DesktopMenu.h"
#include "navigation/UINavigationControllerPeer.h"
#include "views/UIViewPeer.h"

#include <string>
#include <vector>

/// What pages were told, in order: "viewWillAppear B".
using PageLog = std::vector<std::string>;

/// A page that writes down what it is told.
class LoggedPage final : public UIViewController {
public:
    /// \param log outlives the page
    LoggedPage(PageLog& log, std::string name);

    // UIViewController:
    void viewDidLoad() override;

private:
    PageLog& log_;
    std::string name_;
};

/// A navigation controller in a window.
class NavigationFixture : public Phone {
protected:
    using Phone::Phone;

    /// A page of that title.
    Ref<LoggedPage> page(const std::string& name) { return make<LoggedPage>(log, name); }

    /// Shows the navigation controller with those pages, and forgets what was logged.
    void show(const UINavigationControllerPeer::Stack& pages);

    UINavigationControllerPeer& peer() { return peerOf<UINavigationControllerPeer>(*navigation); }

    NavigationBarContentView& content() { return *peer().bar().content(); }

    std::vector<std::string> titles();

    PageLog log;
    Ref<UINavigationController> navigation = make<UINavigationController>();
};
