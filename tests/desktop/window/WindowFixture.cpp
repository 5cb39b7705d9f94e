#include "WindowFixture.h"

#include "CountedButton.h"
#include "views/UIViewPeer.h"

#include <QGuiApplication>

WindowFixture::WindowFixture(const TestDevice::Settings& settings)
    : Phone({}, settings),
      shown(screen, finger,
            {.scale = std::nullopt,
             .followsAppearance = true,
             .goBack = [this] { ++timesBack_; },
             .showTime = [] {}}) {
    first_ = addCountedButton(*window, firstFrame, "First", firstPresses_);
    second_ = addCountedButton(*window, secondFrame, "Second", secondPresses_);
    shown.resize(195, 422);
    shown.show();
    run();
}

void WindowFixture::click(QPointF place) {
    QMouseEvent down(QEvent::MouseButtonPress, place, shown.mapToGlobal(place), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, place, shown.mapToGlobal(place), Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &up);
    run();
}

void WindowFixture::press(Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &down);
    run();
}

void WindowFixture::run() {
    QCoreApplication::processEvents();
}
