#include "WindowAccessibility.h"

#include "DeviceWindow.h"
#include "ElementAccessibility.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const window = qobject_cast<DeviceWindow*>(object);
    return window != nullptr ? new WindowAccessibility(*window) : nullptr;
}

QAccessible::Event eventFor(ToldElements::Change change) {
    switch (change) {
    case ToldElements::Change::Elements:
        return QAccessible::ObjectReorder;
    case ToldElements::Change::Name:
        return QAccessible::NameChanged;
    case ToldElements::Change::Value:
        return QAccessible::DescriptionChanged;
    }
    return QAccessible::InvalidEvent;
}

} // namespace

void WindowAccessibility::install() {
    QAccessible::installFactory(makeInterface);
}

WindowAccessibility::WindowAccessibility(DeviceWindow& window) : QAccessibleObject(&window) {}

WindowAccessibility::~WindowAccessibility() {
    for (const auto& child : children_)
        QAccessible::deleteAccessibleInterface(child.id);
}

DeviceWindow& WindowAccessibility::deviceWindow() const {
    return *qobject_cast<DeviceWindow*>(object());
}

QWindow* WindowAccessibility::window() const {
    return qobject_cast<DeviceWindow*>(object());
}

QAccessibleInterface* WindowAccessibility::parent() const {
    return QAccessible::queryAccessibleInterface(qGuiApp);
}

int WindowAccessibility::childCount() const {
    return static_cast<int>(KeyboardFocus::elements().size());
}

QAccessibleInterface* WindowAccessibility::child(int index) const {
    const auto elements = KeyboardFocus::elements();
    if (index < 0 || std::cmp_greater_equal(index, elements.size()))
        return nullptr;
    return interfaceFor(elements[static_cast<std::size_t>(index)].view);
}

int WindowAccessibility::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const element = dynamic_cast<const ElementAccessibility*>(child);
    const auto elements = KeyboardFocus::elements();
    if (element == nullptr)
        return -1;
    const auto found = std::ranges::find(elements, element->view(), &AccessibilityElement::view);
    return found != elements.end() ? static_cast<int>(found - elements.begin()) : -1;
}

QAccessibleInterface* WindowAccessibility::focusChild() const {
    const auto view = deviceWindow().focusedView();
    return view ? childFor(*view) : nullptr;
}

QAccessibleInterface* WindowAccessibility::childFor(const UIView& view) const {
    const auto elements = KeyboardFocus::elements();
    const auto found =
        std::ranges::find(elements, &view, [](const auto& element) { return element.view.get(); });
    return found != elements.end() ? interfaceFor(found->view) : nullptr;
}

void WindowAccessibility::tell(const ToldElements::News& news) {
    auto* const told = news.view ? childFor(*news.view) : this;
    if (told == nullptr)
        return;
    if (news.change == ToldElements::Change::Value && told->state().checkable) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(told, changed);
        QAccessible::updateAccessibility(&event);
        return;
    }
    QAccessibleEvent event(told, eventFor(news.change));
    QAccessible::updateAccessibility(&event);
}

QAccessibleInterface* WindowAccessibility::interfaceFor(const Ref<UIView>& view) const {
    forgetGone();
    const auto known =
        std::ranges::find(children_, view, [](const Child& child) { return child.view.strong(); });
    if (known != children_.end())
        return QAccessible::accessibleInterface(known->id);
    auto* const made = new ElementAccessibility(*this, view); // Qt owns it from here
    children_.push_back({.view = view, .id = QAccessible::registerAccessibleInterface(made)});
    return made;
}

void WindowAccessibility::forgetGone() const {
    std::erase_if(children_, [](const Child& child) {
        if (child.view.strong())
            return false;
        QAccessible::deleteAccessibleInterface(child.id);
        return true;
    });
}

QRect WindowAccessibility::rect() const {
    return deviceWindow().geometry();
}

QString WindowAccessibility::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? deviceWindow().title() : QString();
}

QAccessible::Role WindowAccessibility::role() const {
    return QAccessible::Window;
}

QAccessible::State WindowAccessibility::state() const {
    QAccessible::State state;
    state.active = deviceWindow().isActive();
    return state;
}
