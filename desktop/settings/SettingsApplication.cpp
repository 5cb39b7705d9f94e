#include "SettingsApplication.h"

#include "AboutPage.h"
#include "Dispatch/MainQueue.h"
#include "Foundation/NSLog.h"
#include "ObjectiveC/Weak.h"
#include "PSListControllerPeer.h"
#include "ProblemPage.h"
#include "SplitController.h"
#include "controllers/DesktopNavigationItem.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Screen.h"

namespace {

using LargeTitle = DesktopNavigationItem::LargeTitle;

Ref<UINavigationController> makeStack(const Ref<UIViewController>& first) {
    auto stack = make<UINavigationController>();
    auto& peer = peerOf<UINavigationControllerPeer>(*stack);
    peer.setPrefersLargeTitles(true);
    peer.setViewControllers({first}, false);
    return stack;
}

bool hasColumns() {
    return Screen::current().traits().idiom == Idiom::Pad;
}

} // namespace

SettingsApplication::SettingsApplication(PaneLoader& loader)
    : loader_(loader),
      firstPage_(make<SettingsRootPage>()) {
    firstPage_->setOpeners({.about = [this] { openAbout(true); },
                            .entry = [this](const PaneEntry& entry) { open(entry, true); }});
    firstPage_->peer().navigationItem().setLargeTitle(LargeTitle::Always);
    if (hasColumns()) {
        makeColumns();
    } else {
        pages_ = makeStack(firstPage_);
        root_ = pages_;
    }
}

SettingsApplication::~SettingsApplication() {
    firstPage_->setOpeners({});
}

void SettingsApplication::makeColumns() {
    const auto about = make<AboutPage>();
    about->peer().navigationItem().setLargeTitle(LargeTitle::Never);
    pages_ = makeStack(about);
    root_ = make<SplitController>(makeStack(firstPage_), pages_);
    peerOf<PSListControllerPeer>(*firstPage_).setKeepsSelection(true);
    selectRow(SettingsRootPage::aboutId);
}

void SettingsApplication::open(const PaneEntry& entry, bool animated) {
    show(makePage(entry), animated);
    selectRow(entry.name);
}

void SettingsApplication::openAbout(bool animated) {
    show(make<AboutPage>(), animated);
    selectRow(SettingsRootPage::aboutId);
}

void SettingsApplication::selectRow(const std::string& id) {
    if (!hasColumns())
        return;
    // Later, once the list has its place and so its rows theirs.
    MainQueue::async([page = Weak<SettingsRootPage>(firstPage_), id] {
        if (const auto shown = page.strong())
            shown->showSelected(id);
    });
}

Ref<UIViewController> SettingsApplication::makePage(const PaneEntry& entry) {
    auto page = loader_.makePage(entry);
    if (page)
        return *page;
    NSLog("The pane %@ cannot be opened: %@", entry.label, page.error());
    return make<ProblemPage>(entry.label, page.error());
}

void SettingsApplication::show(const Ref<UIViewController>& page, bool animated) {
    Screen::current().presentations().dismissTransient();
    root_->dismissViewControllerAnimated(false, {}); // what the page before has presented
    page->peer().navigationItem().setLargeTitle(LargeTitle::Never);
    auto& stack = peerOf<UINavigationControllerPeer>(*pages_);
    if (hasColumns())
        stack.setViewControllers({page}, false);
    else
        stack.setViewControllers({firstPage_, page}, animated);
}
