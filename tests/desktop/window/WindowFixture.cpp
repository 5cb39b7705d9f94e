#include "WindowFixture.h"

#include "UIViewPeer.h"

#include <QGuiApplication>

WindowFixture::WindowFixture()
    : content_(make<UIWindow>()),
      window_(screen_, touches_,
              {.scale = std::nullopt,
               .followsAppearance = true,
               .goBack = [this] { ++timesBack_; },
               .showTime = [] {}}) {
    screen_.addWindow(content_);
    first_ = addButton(firstFrame, "First", firstPresses_);
    second_ = addButton(secondFrame, "Second", secondPresses_);
    window_.resize(195, 422);
    window_.show();
    run();
}

WindowFixture::~WindowFixture() {
    screen_.removeWindow(*content_);
}

Ref<UIControl> WindowFixture::addButton(const CGRect& frame, const std::string& label, int& presses) {
    auto button = make<UIControl>();
    button->setFrame(frame);
    button->peer().setAccessibility(
        {.label = label, .value = {}, .role = AccessibilityRole::Button, .isElement = true});
    dynamic_cast<UIControlPeer&>(button->peer()).addHandler(UIControlEvents::TouchUpInside, [&presses] {
        ++presses;
    });
    content_->addSubview(button);
    return button;
}

void WindowFixture::click(QPointF place) {
    QMouseEvent down(QEvent::MouseButtonPress, place, window_.mapToGlobal(place), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, place, window_.mapToGlobal(place), Qt::LeftButton,
                   Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &up);
    run();
}

void WindowFixture::press(Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &down);
    run();
}

void WindowFixture::run() {
    QCoreApplication::processEvents();
}
