#pragma once

#include "ObjectiveC/Class.h"
#include "Overridable.h"

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

/// What classes of ours may override of a class of the frameworks.
class FrameworkClass {
public:
    FrameworkClass(const char* name, std::initializer_list<Overridable> overridables);
    FrameworkClass(const FrameworkClass&) = delete;
    FrameworkClass& operator=(const FrameworkClass&) = delete;

    /// Null for a class that is not the frameworks'.
    [[nodiscard]] static const FrameworkClass* named(std::string_view name);

    /// The methods that the class adds to those of its base.
    [[nodiscard]] std::span<const Overridable> overridables() const { return overridables_; }

private:
    const char* name_;
    std::vector<Overridable> overridables_;
    const FrameworkClass* next_;
};

/// A class of the frameworks that the C++ class `T` stands for, stated once beside that class's definition.
/// The class table knows it by that; `Base` is the nearest of its bases that is in the table too.
///
///     const FrameworkClassOf<UIView, UIResponder> frameworkClass(
///         "UIView", {overridable<"-[UIView layoutSubviews]", &UIView::layoutSubviews>()});
template <class T, class Base = NSObject>
class FrameworkClassOf final : public FrameworkClass {
public:
    explicit FrameworkClassOf(const char* name, std::initializer_list<Overridable> overridables = {})
        : FrameworkClass(name, overridables),
          stated_(Class::define<T, Base>(name)) {}

private:
    const Class stated_;
};
