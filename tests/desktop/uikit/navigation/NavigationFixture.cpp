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

NavigationFixture::NavigationFixture(Screen::Options options) : screen(options) {}

void NavigationFixture::show(const UINavigationControllerPeer::Stack& pages) {
    peer().setViewControllers(pages, false);
    window->setRootViewController(navigation);
    screen.addWindow(window);
    settle();
    log.clear();
}

std::vector<std::string> NavigationFixture::titles() {
    std::vector<std::string> titles;
    for (const auto& page : peer().stack())
        titles.push_back(page->peer().title());
    return titles;
}

void NavigationFixture::settle() {
    EXPECT_TRUE(Device::current().mainQueue().settle(device.clock(),
                                                     device.clock().uptime() + std::chrono::minutes(1)));
}

void NavigationFixture::tap(CGPoint place) {
    touches.touch(TouchPhase::Began, place);
    touches.touch(TouchPhase::Ended, place);
}

void NavigationFixture::tap(const UIView& view) {
    const auto frame = screenFrame(view);
    tap(CGPoint{CGRectGetMidX(frame), CGRectGetMidY(frame)});
}

void NavigationFixture::drag(CGPoint from, CGPoint to, int steps) {
    constexpr auto stepTime = std::chrono::milliseconds(16);
    touches.touch(TouchPhase::Began, from);
    for (auto step = 1; step <= steps; ++step) {
        advance(stepTime);
        const auto part = static_cast<double>(step) / steps;
        touches.touch(TouchPhase::Moved, {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    }
}
