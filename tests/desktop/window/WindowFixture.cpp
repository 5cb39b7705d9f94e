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
             .beginFrame = [this] { device.clock().moveTo(device.clock().uptime() + betweenFrames_); },
             .showTime = [this] { timeOfPicture_ = Device::current().clock().uptime(); }}) {
    first_ = addCountedButton(*window, firstFrame, "First", firstPresses_);
    second_ = addCountedButton(*window, secondFrame, "Second", secondPresses_);
    shown.resize(195, 422);
    shown.show();
    run();
}

void WindowFixture::click(QPointF place) {
    send(QEvent::MouseButtonPress, place);
    send(QEvent::MouseButtonRelease, place);
    run();
}

void WindowFixture::send(QEvent::Type type, QPointF place) {
    QMouseEvent event(type, place, shown.mapToGlobal(place), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &event);
}

void WindowFixture::press(Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown, &down);
    run();
}

void WindowFixture::run() {
    QCoreApplication::processEvents();
}
