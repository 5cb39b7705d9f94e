#include "navigation/NavigationFixture.h"

#include <utility>

namespace {

class LoggedPagePeer final : public UIViewControllerPeer {
public:
    LoggedPagePeer(PageLog& log, std::string name) : log_(log), name_(std::move(name)) {}

    // UIViewControllerPeer:
    void viewWillAppear(bool /*animated*/) override { note("viewWillAppear"); }

    void viewDidAppear(bool /*animated*/) override { note("viewDidAppear"); }

    void viewWillDisappear(bool /*animated*/) override { note("viewWillDisappear"); }

    void viewDidDisappear(bool /*animated*/) override { note("viewDidDisappear"); }

private:
    void note(const char* what) { log_.push_back(std::string(what) + " " + name_); }

    PageLog& log_;
    std::string name_;
};

} // namespace

LoggedPage::LoggedPage(PageLog& log, std::string name)
    : UIViewController(std::make_unique<LoggedPagePeer>(log, name)),
      log_(log),
      name_(std::move(name)) {
    peer().setTitle(name_);
}

void LoggedPage::viewDidLoad() {
    UIViewController::viewDidLoad();
    log_.push_back("viewDidLoad " + name_);
}

void NavigationFixture::show(const UINavigationControllerPeer::Stack& pages) {
    peer().setViewControllers(pages, false);
    Phone::show(navigation);
    settle();
    log.clear();
}

std::vector<std::string> NavigationFixture::titles() {
    std::vector<std::string> titles;
    for (const auto& page : peer().stack())
        titles.push_back(page->peer().title());
    return titles;
}
