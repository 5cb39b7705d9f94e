#pragma once

#include "ObjectiveC/Weak.h"
#include "accessibility/AccessibilityElement.h"

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <optional>

class WindowAccessibility;

/// What assistive programs see of one element of the screen; pressing it taps it. Made by the window's, and
/// owned by Qt; invalid once the element is gone.
// NOLINTNEXTLINE(misc-multiple-inheritance): Qt's interfaces are meant to be joined so
class ElementAccessibility final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ElementAccessibility(const WindowAccessibility& parent, const Ref<UIView>& view)
        : parent_(parent),
          view_(view) {}

    [[nodiscard]] Ref<UIView> view() const { return view_.strong(); }

    // QAccessibleInterface:
    [[nodiscard]] bool isValid() const override { return element().has_value(); }

    [[nodiscard]] QObject* object() const override { return nullptr; }

    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;

    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

    [[nodiscard]] int childCount() const override { return 0; }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

    // QAccessibleActionInterface:
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;

    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    [[nodiscard]] std::optional<AccessibilityElement> element() const;

    const WindowAccessibility& parent_;
    Weak<UIView> view_;
};
