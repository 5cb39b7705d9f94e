#include "DeviceWindow.h"

#include "ContinuousCorners.h"
#include "DesktopClipboard.h"
#include "DesktopFileDialog.h"
#include "Device.h"
#include "RectGeometry.h"
#include "TextKeys.h"
#include "WindowAccessibility.h"
#include "controls/Adjustable.h"
#include "screen/FilePicker.h"
#include "screen/IdlePreparation.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "scrolling/UIScrollViewPeer.h"
#include "time/MainQueueScheduler.h"
#include "time/UnixTime.h"
#include "typing/TextFieldContent.h"
#include "typing/TextInput.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QScreen>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr std::chrono::milliseconds frameTime(8); // of a display of 120 a second
constexpr QColor surroundings(20, 20, 22);
constexpr double focusRingWidth = 3;      // the window's units
constexpr double pointsPerWheelStep = 48; // of the screen
constexpr double wheelUnitsPerStep = 120; // Qt's
constexpr double greatestPartOfDesktop = 0.9;

double textLightness() {
    return QGuiApplication::palette().color(QPalette::WindowText).lightnessF();
}

double backgroundLightness() {
    return QGuiApplication::palette().color(QPalette::Window).lightnessF();
}

/// One unit for a point, or fewer where the desktop has no room for that.
QSize firstSize(CGSize screen) {
    const QSizeF wanted(screen.width, screen.height);
    const auto room = QSizeF(QGuiApplication::primaryScreen()->availableSize()) * greatestPartOfDesktop;
    const auto fitted = wanted.scaled(room, Qt::KeepAspectRatio);
    return (fitted.width() < wanted.width() ? fitted : wanted).toSize();
}

/// The time that is shown is of minutes.
std::chrono::milliseconds untilNextMinute(const Clock& clock) {
    constexpr double minute = 60;
    const auto passed = std::fmod(unixTimeOf(clock.date()), minute);
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(minute - passed));
}

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Along a line, as it is read.
bool leadsOn(const QKeyEvent& event) {
    return event.key() == (Screen::current().traits().rightToLeft ? Qt::Key_Left : Qt::Key_Right);
}

bool leadsBack(const QKeyEvent& event) {
    return event.key() == (Screen::current().traits().rightToLeft ? Qt::Key_Right : Qt::Key_Left);
}

bool hasKeyboard(const UIView& view) {
    const auto* const field = peerIf<TextFieldContent>(view);
    return field != nullptr && field->fieldIsFirstResponder();
}

TouchPhase phaseOf(QEventPoint::State state) {
    switch (state) {
    case QEventPoint::Pressed:
        return TouchPhase::Began;
    case QEventPoint::Released:
        return TouchPhase::Ended;
    default:
        return TouchPhase::Moved;
    }
}

/// The innermost view there that scrolls; null when there is none.
UIScrollView* scrollViewAt(const Screen& screen, CGPoint place) {
    auto* view = screen.hitTest(place);
    while (view != nullptr && dynamic_cast<UIScrollView*>(view) == nullptr)
        view = view->peer().superview();
    return dynamic_cast<UIScrollView*>(view);
}

} // namespace

DeviceWindow::DeviceWindow(Screen& screen, TouchDispatcher& touches, Options options)
    : screen_(screen),
      touches_(touches),
      options_(std::move(options)),
      compositor_(screen),
      placement_(firstSize(screen.bounds().size), devicePixelRatio(), screen.bounds().size) {
    setTitle("Corvex");
    resize(firstSize(screen.bounds().size));
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &DeviceWindow::refresh);
    qGuiApp->installEventFilter(this);
    screen_.setClipboard(std::make_unique<DesktopClipboard>());
    screen_.setFileDialog(std::make_unique<DesktopFileDialog>(*this));
    followAppearance();
    place();
}

void DeviceWindow::place() {
    placement_ = ScreenPlacement(size(), devicePixelRatio(), screen_.bounds().size);
    screen_.setScale(options_.scale.value_or(placement_.pixelsPerPoint()));
    update();
    wake();
}

void DeviceWindow::followAppearance() {
    if (options_.followsAppearance)
        screen_.setStyle(backgroundLightness() < textLightness() ? UserInterfaceStyle::Dark
                                                                 : UserInterfaceStyle::Light);
    wake();
}

void DeviceWindow::wake() {
    const auto isBetweenFrames = timer_.isActive() && compositor_.isAnimating();
    if (isBetweenFrames)
        return;
    isPictureDue_ = true;
    timer_.start(0);
}

void DeviceWindow::beginFrame() {
    if (!isPictureDue_)
        options_.beginFrame();
}

void DeviceWindow::refresh() {
    Device::current().mainQueue().runDue();
    options_.showTime();
    picture_ = &compositor_.render();
    inputMethod_.follow(screen_.firstResponder().input());
    QRegion changed;
    for (const auto& rect : compositor_.lastDamage())
        changed += placement_.toWindow(rect, picture_->size());
    if (!changed.isEmpty()) {
        update(changed);
        tellAssistivePrograms();
    }
    const auto moves = !changed.isEmpty() || compositor_.isAnimating();
    isPictureDue_ = false;
    beginFrame(); // so that what comes next waits no longer for what this one took
    scheduleRefresh(moves || prepareWhileIdle());
}

/// What nobody sees changing has not changed for them either.
void DeviceWindow::tellAssistivePrograms() {
    auto* const told =
        QAccessible::isActive() ? dynamic_cast<WindowAccessibility*>(accessibleRoot()) : nullptr;
    if (told == nullptr)
        return;
    for (const auto& news : toldElements_.update(KeyboardFocus::elements()))
        told->tell(news);
}

void DeviceWindow::scheduleRefresh(bool asNextFrame) {
    auto& device = Device::current();
    auto wait = asNextFrame ? frameTime : untilNextMinute(device.clock());
    if (const auto due = device.mainQueue().nextDue()) {
        const auto untilDue = std::max(*due - device.clock().uptime(), std::chrono::nanoseconds::zero());
        wait = std::min(wait, std::chrono::ceil<std::chrono::milliseconds>(untilDue));
    }
    if (const auto untilBlink = screen_.firstResponder().untilBlink())
        wait = std::min(wait, std::chrono::ceil<std::chrono::milliseconds>(*untilBlink));
    timer_.start(wait);
}

void DeviceWindow::resizeEvent(QResizeEvent* /*event*/) {
    place();
}

void DeviceWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(QRect(QPoint(), size()), surroundings);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (picture_ != nullptr)
        painter.drawImage(placement_.frame(), *picture_);
    paintAroundGlass(painter);
    paintFocus(painter);
}

void DeviceWindow::paintAroundGlass(QPainter& painter) const {
    const auto frame = placement_.frame();
    const auto radius = screen_.cornerRadius() * frame.width() / screen_.bounds().size.width;
    QPainterPath corners;
    corners.addRect(frame);
    corners.addPath(continuousCornersPath(frame, radius));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(corners, surroundings);
}

void DeviceWindow::paintFocus(QPainter& painter) const {
    const auto element = focus_.element();
    if (!element)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QGuiApplication::palette().color(QPalette::Highlight), focusRingWidth));
    const auto half = focusRingWidth / 2;
    const auto around = placement_.toWindow(element->frame).adjusted(-half, -half, half, half);
    const auto ring = around.intersected(placement_.frame().adjusted(half, half, -half, -half));
    painter.drawRoundedRect(ring, focusRingWidth, focusRingWidth);
}

void DeviceWindow::touch(TouchPhase phase, QPointF place) {
    touches_.touch(phase, placement_.toScreen(place));
    wake();
}

void DeviceWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (focus_.element()) {
        focus_.clear();
        update();
    }
    touch(TouchPhase::Began, event->position());
}

void DeviceWindow::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        touch(TouchPhase::Moved, event->position());
}

void DeviceWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        touch(TouchPhase::Ended, event->position());
}

void DeviceWindow::touchEvent(QTouchEvent* event) {
    if (event->type() == QEvent::TouchCancel)
        touch(TouchPhase::Cancelled, {});
    else if (event->pointCount() > 0)
        touch(phaseOf(event->point(0).state()), event->point(0).position());
    event->accept();
}

void DeviceWindow::focusOutEvent(QFocusEvent* /*event*/) {
    if (touches_.isTouching())
        touch(TouchPhase::Cancelled, {});
}

void DeviceWindow::wheelEvent(QWheelEvent* event) {
    auto* const scroll = scrollViewAt(screen_, placement_.toScreen(event->position()));
    if (scroll == nullptr)
        return;
    const auto unit = devicePixelRatio() / placement_.pixelsPerPoint();
    const auto distance = event->hasPixelDelta()
                              ? QPointF(event->pixelDelta()) * unit
                              : QPointF(event->angleDelta()) * pointsPerWheelStep / wheelUnitsPerStep;
    peerOf<UIScrollViewPeer>(*scroll).scrollBy({-distance.x(), -distance.y()});
    wake();
}

void DeviceWindow::keyPressEvent(QKeyEvent* event) {
    const auto element = focus_.element();
    const auto presses = event->key() == Qt::Key_Space || isReturn(*event);
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        moveFocus(event->key() == Qt::Key_Tab);
    else if (event->key() == Qt::Key_Escape)
        escape();
    else if (presses && element && !hasKeyboard(*element->view))
        press(*element);
    else if (!adjust(*event) && !moveInChoices(*event) && !type(*event) && !choosePreferred(*event) &&
             !scroll(*event))
        event->ignore();
    wake();
}

/// A text that the keyboard comes to takes what is typed.
void DeviceWindow::moveFocus(bool forward) {
    focus_.move(forward);
    if (const auto element = focus_.element())
        element->view->becomeFirstResponder();
    focusChanged();
}

bool DeviceWindow::adjust(const QKeyEvent& event) {
    const auto up = leadsOn(event) || event.key() == Qt::Key_Up;
    const auto down = leadsBack(event) || event.key() == Qt::Key_Down;
    const auto element = focus_.element();
    return element && up != down && adjust(*element, up);
}

bool DeviceWindow::adjust(const AccessibilityElement& element, bool up) {
    auto* const adjustable = peerIf<Adjustable>(*element.view);
    if (adjustable == nullptr)
        return false;
    adjustable->adjust(up);
    wake();
    return true;
}

bool DeviceWindow::moveInChoices(const QKeyEvent& event) {
    const auto* const presented = screen_.presentations().top();
    const auto back = event.key() == Qt::Key_Up || leadsBack(event);
    const auto forward = event.key() == Qt::Key_Down || leadsOn(event);
    const auto isChoice =
        presented != nullptr && (presented->kind() == "menu" || presented->kind() == "alert");
    if (!isChoice || back == forward)
        return false;
    moveFocus(forward);
    return true;
}

bool DeviceWindow::choosePreferred(const QKeyEvent& event) {
    const auto* const presented = screen_.presentations().top();
    if (!isReturn(event) || presented == nullptr)
        return false;
    const auto actions = presented->actions();
    const auto preferred = std::ranges::find_if(actions, &Presented::Action::isPreferred);
    if (preferred == actions.end())
        return false;
    const auto elements = KeyboardFocus::elements();
    const auto isButton = [&preferred](const AccessibilityElement& element) {
        return element.isStop() && element.label == preferred->title;
    };
    const auto button = std::ranges::find_if(elements, isButton);
    if (button != elements.end())
        press(*button);
    return true;
}

/// What is only read is no stop, and yet to be brought into view.
bool DeviceWindow::scroll(const QKeyEvent& event) {
    const auto isLine = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    const auto isPage = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
    const auto* const view = viewInFront();
    if ((!isLine && !isPage) || view == nullptr)
        return false;
    const auto frame = view->peer().convertToScreen(view->bounds());
    auto* const scroll = scrollViewAt(screen_, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
    if (scroll == nullptr)
        return false;
    const auto distance = isLine ? pointsPerWheelStep : scroll->bounds().size.height / 2;
    const auto isUp = event.key() == Qt::Key_Up || event.key() == Qt::Key_PageUp;
    peerOf<UIScrollViewPeer>(*scroll).scrollBy({0, isUp ? -distance : distance});
    return true;
}

bool DeviceWindow::type(const QKeyEvent& event) {
    auto* const input = screen_.firstResponder().input();
    return input != nullptr && typeKey(event, *input, screen_.clipboard());
}

bool DeviceWindow::event(QEvent* event) {
    if (auto* const composed = dynamic_cast<QInputMethodEvent*>(event))
        compose(*composed);
    else if (auto* const entered = dynamic_cast<QDragEnterEvent*>(event))
        entered->setAccepted(filePicker() != nullptr && entered->mimeData()->hasUrls());
    else if (auto* const dropped = dynamic_cast<QDropEvent*>(event);
             dropped != nullptr && dropped->type() == QEvent::Drop)
        drop(*dropped);
    else if (auto* const query = dynamic_cast<QInputMethodQueryEvent*>(event))
        answer(*query);
    else
        return QRasterWindow::event(event);
    return true;
}

FilePicker* DeviceWindow::filePicker() const {
    const auto* const presented = screen_.presentations().top();
    return presented != nullptr ? presented->filePicker() : nullptr;
}

/// What becomes of the files is shown on the screen.
void DeviceWindow::drop(QDropEvent& event) {
    std::vector<std::string> paths;
    for (const auto& url : event.mimeData()->urls())
        paths.push_back(url.toLocalFile().toStdString());
    auto* const picker = filePicker();
    event.setAccepted(picker != nullptr);
    if (picker != nullptr)
        static_cast<void>(picker->pickFiles(paths));
    wake();
}

void DeviceWindow::compose(QInputMethodEvent& event) {
    auto* const input = screen_.firstResponder().input();
    event.setAccepted(input != nullptr);
    if (input != nullptr)
        InputMethod::compose(event, *input);
    wake();
}

void DeviceWindow::answer(QInputMethodQueryEvent& event) const {
    constexpr unsigned bits = 32;
    for (unsigned bit = 0; bit < bits; ++bit) {
        const auto query = static_cast<Qt::InputMethodQuery>(1U << bit);
        const auto value = event.queries().testFlag(query)
                               ? InputMethod::answer(query, screen_.firstResponder().input(), placement_)
                               : QVariant();
        if (value.isValid())
            event.setValue(query, value);
    }
    event.accept();
}

void DeviceWindow::press(const AccessibilityElement& element) {
    scrollIntoView(*element.view);
    const auto frame = element.view->peer().convertToScreen(element.view->bounds());
    tap({CGRectGetMidX(frame), CGRectGetMidY(frame)});
}

void DeviceWindow::tap(CGPoint place) {
    touches_.touch(TouchPhase::Began, place);
    touches_.touch(TouchPhase::Ended, place);
    wake();
}

void DeviceWindow::focusOn(const AccessibilityElement& element) {
    focus_.set(element.view);
    scrollIntoView(*element.view);
    element.view->becomeFirstResponder();
    focusChanged();
}

Ref<UIView> DeviceWindow::focusedView() const {
    const auto element = focus_.element();
    return element ? element->view : nullptr;
}

void DeviceWindow::focusChanged() {
    update();
    wake();
    auto* const interface = dynamic_cast<WindowAccessibility*>(accessibleRoot());
    auto* const child = interface != nullptr ? interface->focusChild() : nullptr;
    if (child == nullptr)
        return;
    QAccessibleEvent event(child, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void DeviceWindow::escape() {
    if (auto* const presented = screen_.presentations().top())
        presented->dismissPresented();
    else
        options_.goBack();
}

void DeviceWindow::exposeEvent(QExposeEvent* event) {
    QRasterWindow::exposeEvent(event);
    const auto isOfAnotherDensity = placement_.pixelRatio() != devicePixelRatio();
    if (isOfAnotherDensity)
        place();
}

/// Sees all events of the program first.
bool DeviceWindow::eventFilter(QObject* watched, QEvent* event) {
    beginFrame();
    if (event->type() == QEvent::ApplicationPaletteChange)
        followAppearance();
    return QRasterWindow::eventFilter(watched, event);
}

QAccessibleInterface* DeviceWindow::accessibleRoot() const {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): Qt asks constantly, and takes what is variable
    return QAccessible::queryAccessibleInterface(const_cast<DeviceWindow*>(this));
}
