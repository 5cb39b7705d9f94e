#pragma once

#include "ObjectiveC/Weak.h"
#include "ToldElements.h"
#include "UIKit/UIView.h"

#include <QAccessibleObject>
#include <vector>

class DeviceWindow;

/// What assistive programs see of the window: its elements, in the order in which Tab goes through them. Made
/// by Qt when one asks, and owned by it.
class WindowAccessibility final : public QAccessibleObject {
public:
    /// Has Qt make these for windows of the device.
    static void install();

    explicit WindowAccessibility(DeviceWindow& window);
    ~WindowAccessibility() override;
    WindowAccessibility(const WindowAccessibility&) = delete;
    WindowAccessibility& operator=(const WindowAccessibility&) = delete;

    [[nodiscard]] DeviceWindow& deviceWindow() const;

    /// The element for a view; null when it is none now.
    [[nodiscard]] QAccessibleInterface* childFor(const UIView& view) const;

    /// Tells assistive programs of something that has changed.
    void tell(const ToldElements::News& news);

    // QAccessibleInterface:
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

private:
    /// An element that has been told of.
    struct Child {
        Weak<UIView> view;
        QAccessible::Id id;
    };

    QAccessibleInterface* interfaceFor(const Ref<UIView>& view) const;
    void forgetGone() const;

    mutable std::vector<Child> children_;
};
