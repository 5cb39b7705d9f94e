#pragma once

#include "InputMethod.h"
#include "KeyboardFocus.h"
#include "ScreenPlacement.h"
#include "ToldElements.h"
#include "screen/Compositor.h"
#include "touches/TouchPhase.h"

#include <QRasterWindow>
#include <QTimer>
#include <functional>
#include <optional>

class QDropEvent;
class QEvent;
class QInputMethodQueryEvent;
class FilePicker;
class Screen;
class TouchDispatcher;

/// The window that shows the device's screen and hands mouse, fingers, wheel and keys to it. Runs the
/// device's main queue. Made by the program, on a device with real time; the screen and the dispatcher
/// outlive it.
class DeviceWindow final : public QRasterWindow {
    Q_OBJECT

public:
    struct Options {
        /// Pixels per point that the device has; without one it has as many as the window shows.
        std::optional<double> scale;
        /// Whether the device is dark when the desktop is.
        bool followsAppearance = true;
        /// The way back from where the user is.
        std::function<void()> goBack;
        /// Moves the device's time on: before each picture, and before what happens between pictures, but not
        /// between something that happens and the picture that shows it.
        std::function<void()> beginFrame;
        /// Brings up to date what shows the time, before each picture.
        std::function<void()> showTime;
    };

    DeviceWindow(Screen& screen, TouchDispatcher& touches, Options options);

    /// Does what a finger's tap does, in the middle of the element.
    void press(const AccessibilityElement& element);

    /// Sets what an element has a range of values for to the next one up or down. \returns whether it has one
    bool adjust(const AccessibilityElement& element, bool up);

    [[nodiscard]] const ScreenPlacement& placement() const { return placement_; }

    /// Brings the keyboard to an element.
    void focusOn(const AccessibilityElement& element);

    /// The view that the keyboard is at; empty when it is at none.
    [[nodiscard]] Ref<UIView> focusedView() const;

    /// Runs what is due and paints what has changed, soon.
    void wake();

    // QObject, QWindow, QPaintDeviceWindow:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override;

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void place();
    void followAppearance();
    void refresh();
    void beginFrame();
    /// \param asNextFrame or when something is due
    void scheduleRefresh(bool asNextFrame);
    void touch(TouchPhase phase, QPointF place);
    void moveFocus(bool forward);
    bool adjust(const QKeyEvent& event);
    /// Through the rows of a menu or the buttons of an alert.
    bool moveInChoices(const QKeyEvent& event);
    /// Chooses what is preferred of what is presented.
    bool choosePreferred(const QKeyEvent& event);
    bool scroll(const QKeyEvent& event);
    void tap(CGPoint place);
    bool type(const QKeyEvent& event);
    /// Null while nothing waits for files.
    [[nodiscard]] FilePicker* filePicker() const;
    void drop(QDropEvent& event);
    void compose(QInputMethodEvent& event);
    void answer(QInputMethodQueryEvent& event) const;
    void escape();
    void focusChanged();
    void tellAssistivePrograms();
    void paintAroundGlass(QPainter& painter) const;
    void paintFocus(QPainter& painter) const;

    Screen& screen_;
    TouchDispatcher& touches_;
    Options options_;
    Compositor compositor_;
    const QImage* picture_ = nullptr; ///< the compositor's; null before the first
    bool isPictureDue_ = false;       ///< of what has happened in this frame
    ScreenPlacement placement_;
    KeyboardFocus focus_;
    InputMethod inputMethod_;
    ToldElements toldElements_;
    QTimer timer_;
};
