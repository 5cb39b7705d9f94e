#include "ElementAccessibility.h"

#include "DeviceWindow.h"
#include "WindowAccessibility.h"
#include "controls/Adjustable.h"
#include "controls/UIControlPeer.h"

#include <algorithm>

namespace {

QAccessible::Role roleFor(AccessibilityRole role) {
    switch (role) {
    case AccessibilityRole::None:
        return QAccessible::Grouping;
    case AccessibilityRole::Button:
        return QAccessible::Button;
    case AccessibilityRole::StaticText:
        return QAccessible::StaticText;
    case AccessibilityRole::Image:
        return QAccessible::Graphic;
    case AccessibilityRole::Switch:
        return QAccessible::CheckBox;
    case AccessibilityRole::Header:
        return QAccessible::Heading;
    case AccessibilityRole::Link:
        return QAccessible::Link;
    case AccessibilityRole::TextField:
        return QAccessible::EditableText;
    case AccessibilityRole::Slider:
        return QAccessible::Slider;
    case AccessibilityRole::Choice:
        return QAccessible::RadioButton;
    }
    return QAccessible::NoRole;
}

bool isDisabled(const UIView& view) {
    const auto* const control = peerIf<UIControlPeer>(view);
    return control != nullptr && !control->isEnabled();
}

} // namespace

std::optional<AccessibilityElement> ElementAccessibility::element() const {
    const auto all = KeyboardFocus::elements();
    const auto found = std::ranges::find(all, view(), &AccessibilityElement::view);
    return found != all.end() ? std::optional(*found) : std::nullopt;
}

QWindow* ElementAccessibility::window() const {
    return parent_.window();
}

QAccessibleInterface* ElementAccessibility::parent() const {
    return QAccessible::queryAccessibleInterface(&parent_.deviceWindow());
}

QString ElementAccessibility::text(QAccessible::Text kind) const {
    const auto found = element();
    if (found && kind == QAccessible::Name)
        return QString::fromStdString(found->label);
    const auto isDescribed = found && kind == QAccessible::Description && !found->isCheckable();
    if (isDescribed || (found && kind == QAccessible::Value))
        return QString::fromStdString(found->value);
    return {};
}

QRect ElementAccessibility::rect() const {
    const auto found = element();
    if (!found)
        return {};
    const auto& window = parent_.deviceWindow();
    const auto frame = window.placement().toWindow(found->frame).toAlignedRect();
    return {window.mapToGlobal(frame.topLeft()), frame.size()};
}

QAccessible::Role ElementAccessibility::role() const {
    const auto found = element();
    return found ? roleFor(found->role) : QAccessible::NoRole;
}

QAccessible::State ElementAccessibility::state() const {
    QAccessible::State state;
    const auto found = element();
    if (!found) {
        state.invalid = true;
        return state;
    }
    state.focusable = found->isStop();
    state.focused = parent_.deviceWindow().focusedView() == found->view;
    state.checkable = found->isCheckable();
    state.checked = state.checkable && found->value == "1";
    state.editable = found->role == AccessibilityRole::TextField;
    state.disabled = isDisabled(*found->view);
    return state;
}

void* ElementAccessibility::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList ElementAccessibility::actionNames() const {
    QStringList names{pressAction(), setFocusAction()};
    const auto found = element();
    if (found && peerIf<Adjustable>(*found->view) != nullptr)
        names << increaseAction() << decreaseAction();
    return names;
}

void ElementAccessibility::doAction(const QString& name) {
    const auto found = element();
    if (!found)
        return;
    if (name == pressAction())
        parent_.deviceWindow().press(*found);
    else if (name == setFocusAction())
        parent_.deviceWindow().focusOn(*found);
    else if (name == increaseAction() || name == decreaseAction())
        parent_.deviceWindow().adjust(*found, name == increaseAction());
}
