#include "DrivenShell.h"

#include "navigation/UINavigationControllerPeer.h"

Ref<UIViewController> DrivenShell::page() const {
    if (shell_.app() == "home")
        return nullptr;
    return peerOf<UINavigationControllerPeer>(*shell_.settings()->pages()).top();
}

DrivenApplication::Outcome DrivenShell::open(const std::optional<std::string>& entry) {
    return shell_.openEntry(entry ? std::string_view(*entry) : ownEntry);
}

DrivenApplication::Outcome DrivenShell::goBack() {
    if (shell_.app() == "home")
        return std::unexpected("the home screen has no navigation bar");
    auto& pages = peerOf<UINavigationControllerPeer>(*shell_.settings()->pages());
    if (pages.stack().size() < 2)
        return std::unexpected("the navigation bar has no back button");
    if (pages.followsFinger())
        return std::unexpected("a finger is drawing the page away");
    pages.pop(true);
    return {};
}

DrivenApplication::Outcome DrivenShell::relaunch() {
    shell_.relaunch();
    return {};
}
