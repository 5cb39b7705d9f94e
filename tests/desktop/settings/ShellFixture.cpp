#include "ShellFixture.h"

#include "EntryList.h"
#include "navigation/UINavigationControllerPeer.h"
#include "views/UIViewPeer.h"

void ShellFixture::SetUp() {
    install("Good", "standInPage", builtCode("StandInPage"));
    writeEntry("good", "Good");
    writeEntry("missing", "Missing");
    start(Idiom::Phone);
}

void ShellFixture::start(Idiom idiom) {
    shell.reset();
    screen.reset();
    screen.emplace(Screen::Options{.idiom = idiom});
    shell.emplace();
    screen->layoutIfNeeded();
}

void ShellFixture::writeEntry(const std::string& name, const std::string& bundle) const {
    device.write(std::string(EntryList::folder) + "/" + name + ".plist",
                 "<plist version=\"1.0\"><dict><key>entry</key><dict><key>bundle</key><string>" + bundle +
                     "</string></dict></dict></plist>");
}

void ShellFixture::openPane(const std::string& name) {
    ASSERT_TRUE(shell->openEntry(name));
    settle();
}

ShellFixture::Titles ShellFixture::titles() const {
    Titles all;
    for (const auto& page : peerOf<UINavigationControllerPeer>(*shell->settings()->pages()).stack())
        all.push_back(page->peer().title());
    return all;
}

Ref<UIViewController> ShellFixture::topPage() const {
    return peerOf<UINavigationControllerPeer>(*shell->settings()->pages()).top();
}

const UIView& ShellFixture::nameOfIcon() const {
    const auto& home = *screen->windows().front()->peer().subviews().front();
    return *home.peer().subviews().back()->peer().subviews().back();
}

CGRect ShellFixture::frameOfSettings() const {
    const auto& view = shell->settings()->rootViewController()->view();
    return view.peer().convertToScreen(view.bounds());
}
