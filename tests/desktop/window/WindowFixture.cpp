#include "WindowFixture.h"

#include "CountedButton.h"
#include "views/UIViewPeer.h"

#include <QGuiApplication>

WindowFixture::WindowFixture()
    : content_(make<UIWindow>()),
      window_(screen_, touches_,
              {.scale = std::nullopt,
               .followsAppearance = true,
               .goBack = [this] { ++timesBack_; },
               .showTime = [] {}}) {
    screen_.addWindow(content_);
    first_ = addCountedButton(*content_, firstFrame, "First", firstPresses_);
    second_ = addCountedButton(*content_, secondFrame, "Second", secondPresses_);
    window_.resize(195, 422);
    window_.show();
    run();
}

WindowFixture::~WindowFixture() {
    screen_.removeWindow(*content_);
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
